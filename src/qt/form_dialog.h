#pragma once

#include "qt/binder.h"

#include <QDialog>

#include <memory>

namespace horvanta {

/// The window of a modal form, outside of the frame.
class FormDialog final : public QDialog {
    Q_OBJECT
  public:
    FormDialog(Form& form, std::unique_ptr<QWidget> content, Acts& acts, QWidget* parent);

    /// Draws what has changed, shown or hidden as its form is.
    void Draw();

    /// The user closed it.
    void reject() override;

  private:
    Form& form_;
    Acts& acts_;
    Binder binder_;
};

}  // namespace horvanta
