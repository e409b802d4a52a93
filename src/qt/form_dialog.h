#pragma once

#include "qt/binder.h"

#include <QDialog>

#include <optional>

namespace horvanta {

/// The window of a modal form, outside of the frame. It has its widgets from the first time it is shown, because a
/// start needs none of them.
class FormDialog final : public QDialog {
    Q_OBJECT
  public:
    FormDialog(Form& form, Acts& acts, QWidget* parent);

    /// Draws what has changed, shown or hidden as its form is.
    void Draw();

    /// The user closed it.
    void reject() override;

  private:
    void Fill();

    Form& form_;
    Acts& acts_;
    std::optional<Binder> binder_;
};

}  // namespace horvanta
