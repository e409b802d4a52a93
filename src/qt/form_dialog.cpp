#include "qt/form_dialog.h"

#include "qt/forms.h"
#include "qt/plain_text.h"

#include <QVBoxLayout>

#include <memory>
#include <utility>

namespace horvanta {

FormDialog::FormDialog(Form& form, Acts& acts, QWidget* parent) : QDialog(parent), form_(form), acts_(acts) {
    setObjectName(QString::fromStdString(form.name));
    setWindowModality(Qt::ApplicationModal);
}

void FormDialog::Fill() {
    std::unique_ptr<QWidget> content = MakeForm(form_.name);
    binder_.emplace(form_, *content, acts_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content.release());
}

void FormDialog::Draw() {
    const Control* wished = std::exchange(form_.focusWish, nullptr);
    if (!form_.visible) return hide();
    if (!binder_) Fill();
    setWindowTitle(PlainTitle(form_.text));
    binder_->Draw();
    if (!isVisible()) adjustSize();
    show();
    QWidget* widget = wished ? binder_->WidgetOf(*wished) : nullptr;
    if (widget) widget->setFocus(Qt::OtherFocusReason);
}

void FormDialog::reject() { acts_.Run(form_.Close, {.whileBusy = true}); }

}  // namespace horvanta
