#include "qt/form_dialog.h"

#include "qt/plain_text.h"

#include <QVBoxLayout>

#include <utility>

namespace horvanta {

FormDialog::FormDialog(Form& form, std::unique_ptr<QWidget> content, Acts& acts, QWidget* parent)
    : QDialog(parent), form_(form), acts_(acts), binder_(form, *content, acts) {
    setObjectName(QString::fromStdString(form.name));
    setWindowModality(Qt::ApplicationModal);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content.release());
}

void FormDialog::Draw() {
    if (form_.visible) {
        setWindowTitle(PlainTitle(form_.text));
        binder_.Draw();
        if (!isVisible()) adjustSize();
    }
    setVisible(form_.visible);
    const Control* wished = std::exchange(form_.focusWish, nullptr);
    QWidget* widget = wished && form_.visible ? binder_.WidgetOf(*wished) : nullptr;
    if (widget) widget->setFocus(Qt::OtherFocusReason);
}

void FormDialog::reject() { acts_.Run(form_.Close, {.whileBusy = true}); }

}  // namespace horvanta
