#include "qt/new_file_dialog.h"

#include <QFileInfo>

#include <algorithm>

namespace horvanta {

NewFileDialog::NewFileDialog(QWidget* parent, const QString& title, const QString& folder, const QString& name,
                             const std::vector<FileKind>& kinds)
    : QFileDialog(parent, title, folder) {
    QStringList filters;
    for (const FileKind& kind : kinds) {
        extensions_ << QString::fromUtf8(kind.extension);
        filters << QStringLiteral("%1 (*.%2)").arg(QString::fromUtf8(kind.name), extensions_.back());
    }
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setOption(DontConfirmOverwrite);
    setNameFilters(filters);
    selectFile(name);
}

QString NewFileDialog::ChosenExtension() const {
    return extensions_.value(std::max<qsizetype>(nameFilters().indexOf(selectedNameFilter()), 0));
}

QString NewFileDialog::Path() const {
    const QString path = selectedFiles().value(0);
    const bool isOfAKind = extensions_.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
    return isOfAKind ? path : path + u'.' + ChosenExtension();
}

}  // namespace horvanta
