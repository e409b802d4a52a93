#include "qt/up_down_widget.h"

#include "qt/face.h"
#include "qt/keys.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <utility>

namespace horvanta {

UpDownWidget::UpDownWidget(QWidget* parent)
    : QWidget(parent), caption_(new QLabel(this)), up_(MakeArrow(Qt::UpArrow)), down_(MakeArrow(Qt::DownArrow)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2);
    grid->setVerticalSpacing(0);
    grid->addWidget(caption_, 0, 0, 2, 1);
    grid->addWidget(up_, 0, 1);
    grid->addWidget(down_, 1, 1);
    caption_->setTextFormat(Qt::PlainText);
    caption_->hide();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QToolButton* UpDownWidget::MakeArrow(Qt::ArrowType arrow) {
    auto* button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    return button;
}

/// As high as a field.
QSize UpDownWidget::sizeHint() const { return {QWidget::sizeHint().width(), QLineEdit().sizeHint().height()}; }

void UpDownWidget::Draw(const UpDown& arrows) {
    const QString spoken = QString::fromStdString(AccessibleName(arrows));
    caption_->setText(QString::fromStdString(arrows.text));
    caption_->setVisible(!arrows.text.empty());
    ShowName(*caption_, spoken);
    ShowName(*up_, spoken + QStringLiteral(", up"));
    ShowName(*down_, spoken + QStringLiteral(", down"));
    for (QWidget* part : findChildren<QWidget*>()) ShowTip(*part, arrows.tooltip);
}

void UpDownWidget::KeepRoom(const QString& widest) {
    caption_->setMinimumWidth(caption_->fontMetrics().horizontalAdvance(widest));
}

void UpDownWidget::Connect(UpDown& arrows, Acts& acts) {
    for (const auto& [button, direction] : {std::pair(up_, 1), std::pair(down_, -1)}) {
        connect(button, &QToolButton::clicked, this, [&arrows, &acts, step = direction] {
            acts.Fire(arrows, arrows.Step, step, ShiftOf(QGuiApplication::keyboardModifiers()));
        });
    }
}

}  // namespace horvanta
