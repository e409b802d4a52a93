#pragma once

#include "core/desktop.h"

#include <QFileDialog>
#include <QStringList>

#include <vector>

namespace horvanta {

/// Asks for a file to be written.
class NewFileDialog final : public QFileDialog {
    Q_OBJECT
  public:
    NewFileDialog(QWidget* parent, const QString& title, const QString& folder, const QString& name,
                  const std::vector<FileKind>& kinds);

    /// The chosen file; with the ending of the chosen kind if it has that of none.
    QString Path() const;

  private:
    QString ChosenExtension() const;

    QStringList extensions_;  ///< Of the kinds, in the order of the filters.
};

}  // namespace horvanta
