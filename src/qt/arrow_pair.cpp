#include "qt/arrow_pair.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace horvanta {

ArrowPair::ArrowPair(QWidget* parent)
    : QWidget(parent), caption_(new QLabel(this)), up_(MakeArrow(Qt::UpArrow, 1)), down_(MakeArrow(Qt::DownArrow, -1)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2);
    grid->setVerticalSpacing(0);
    grid->addWidget(caption_, 0, 0, 2, 1);
    grid->addWidget(up_, 0, 1);
    grid->addWidget(down_, 1, 1);
    caption_->setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QToolButton* ArrowPair::MakeArrow(Qt::ArrowType arrow, int direction) {
    auto* button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    connect(button, &QToolButton::clicked, this, [this, direction] { Q_EMIT stepped(direction); });
    return button;
}

/// As high as a field.
QSize ArrowPair::sizeHint() const { return {QWidget::sizeHint().width(), QLineEdit().sizeHint().height()}; }

void ArrowPair::Draw(const UpDown& arrows) {
    const QString caption = QString::fromStdString(arrows.text);
    const QString tooltip = QString::fromStdString(arrows.tooltip);
    const QString spoken = QString::fromStdString(AccessibleName(arrows));
    if (caption_->text() != caption) caption_->setText(caption);
    caption_->setVisible(!caption.isEmpty());
    caption_->setAccessibleName(spoken);
    up_->setAccessibleName(spoken + QStringLiteral(", up"));
    down_->setAccessibleName(spoken + QStringLiteral(", down"));
    for (QWidget* part : {static_cast<QWidget*>(caption_), static_cast<QWidget*>(up_), static_cast<QWidget*>(down_)}) {
        part->setToolTip(tooltip);
    }
}

}  // namespace horvanta
