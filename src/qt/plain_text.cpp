#include "qt/plain_text.h"

#include <QTextDocument>

namespace horvanta {

QString PlainToolTip(const std::string& text) {
    const QString plain = QString::fromStdString(text);
    return Qt::mightBeRichText(plain) ? Qt::convertFromPlainText(plain, Qt::WhiteSpaceNormal) : plain;
}

/// Doubled, the sign stands for itself.
QString PlainTitle(const std::string& text) {
    return QString::fromStdString(text).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

}  // namespace horvanta
