#include "qt/panel_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>

namespace horvanta {
namespace {

constexpr int padding = 2;  // pixels between a panel's frame and its text

QString AccessibleText(const StatusBar::Panel& panel) {
    const QString key = QString::fromStdString(panel.key);
    return panel.text == panel.key ? key : key + QStringLiteral(": ") + QString::fromStdString(panel.text);
}

}  // namespace

PanelBar::PanelBar(QWidget* parent) : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void PanelBar::MakePanels(std::size_t count) {
    while (panels_.size() < count) {
        auto* panel = new QLabel(this);
        panel->setTextFormat(Qt::PlainText);
        panel->setAlignment(Qt::AlignCenter);
        panel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        panel->setMargin(padding);
        panel->setMinimumWidth(1);  // in place of the width of its text, which would tell the panels apart
        static_cast<QHBoxLayout*>(layout())->addWidget(panel, 1);
        panels_.push_back(panel);
    }
}

void PanelBar::Draw(const StatusBar& bar) {
    MakePanels(bar.panels.size());
    for (std::size_t i = 0; i < bar.panels.size(); ++i) {
        const StatusBar::Panel& panel = bar.panels[i];
        QLabel& label = *panels_[i];
        const QString text = QString::fromStdString(panel.text);
        const QString tooltip = QString::fromStdString(panel.tooltip.empty() ? bar.tooltip : panel.tooltip);
        const QString accessible = AccessibleText(panel);
        if (label.text() != text) label.setText(text);
        if (label.toolTip() != tooltip) label.setToolTip(tooltip);
        if (label.accessibleName() != accessible) label.setAccessibleName(accessible);
    }
}

void PanelBar::KeepRoom(const QString& widest) {
    if (panels_.empty()) return;
    QLabel& sample = *panels_.front();
    const QString shown = sample.text();
    sample.setText(widest);
    const int width = sample.sizeHint().width();
    sample.setText(shown);
    for (QLabel* panel : panels_) panel->setMinimumWidth(width);
    layout()->activate();  // tells the layout around the bar at once
}

/// Labels pass what the mouse does on to their parent.
void PanelBar::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint where = event->position().toPoint();
    const auto hit = std::find_if(panels_.begin(), panels_.end(),
                                  [where](const QLabel* panel) { return panel->geometry().contains(where); });
    if (event->button() != Qt::LeftButton || hit == panels_.end()) return;
    Q_EMIT panelClicked(static_cast<std::size_t>(hit - panels_.begin()));
}

}  // namespace horvanta
