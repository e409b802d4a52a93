#include "qt/status_bar_widget.h"

#include "qt/face.h"

#include <QHBoxLayout>
#include <QLabel>

namespace horvanta {
namespace {

QString AccessibleText(const StatusBar& bar, std::size_t index) {
    const std::string& name = bar.NameOf(index);
    const std::string& text = bar.panels[index].text;
    return QString::fromStdString(text == name ? name : name + ": " + text);
}

}  // namespace

StatusBarWidget::StatusBarWidget(QWidget* parent) : LabelsWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void StatusBarWidget::AddPanel() {
    QLabel* panel = MakePanel();
    panel->setMinimumWidth(1);  // in place of the width of its text, which would tell the panels apart
    static_cast<QBoxLayout*>(layout())->addWidget(panel, 1);
    parts_.push_back(panel);
}

void StatusBarWidget::Draw(const StatusBar& bar) {
    const bool column = property("column").toBool();
    if (column) static_cast<QBoxLayout*>(layout())->setDirection(QBoxLayout::TopToBottom);
    while (parts_.size() < bar.panels.size()) AddPanel();
    const auto side = property("numbers").toBool() ? Qt::AlignRight : Qt::AlignLeft;
    if (column)
        for (QLabel* panel : parts_) panel->setAlignment(side | Qt::AlignVCenter);
    for (std::size_t i = 0; i < bar.panels.size(); ++i) {
        const StatusBar::Panel& panel = bar.panels[i];
        parts_[i]->setText(QString::fromStdString(panel.text));
        ShowTip(*parts_[i], panel.tooltip.empty() ? bar.tooltip : panel.tooltip);
        ShowName(*parts_[i], AccessibleText(bar, i));
    }
}

void StatusBarWidget::KeepRoom(const QString& widest) {
    KeepRoomIn(parts_, widest);
    layout()->activate();  // tells the layout around the bar at once
}

void StatusBarWidget::Connect(StatusBar& bar, Acts& acts) {
    if (!bar.PanelClick) return;
    setCursor(Qt::PointingHandCursor);
    clicked_ = [&bar, &acts](std::size_t index) { acts.Fire(bar, bar.PanelClick, index); };
}

}  // namespace horvanta
