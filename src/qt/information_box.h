#pragma once

#include <QDialog>

namespace horvanta {

/// A window with a text to read: in the desktop's own font, wrapped to the width, and any part of it can be selected.
/// It is accepted if the user wants a copy of the whole.
class InformationBox final : public QDialog {
    Q_OBJECT
  public:
    InformationBox(const QString& text, const QString& title, QWidget* parent);
};

}  // namespace horvanta
