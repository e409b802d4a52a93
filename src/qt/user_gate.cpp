#include "qt/user_gate.h"

#include <QApplication>
#include <QPointerEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <iterator>
#include <utility>

namespace horvanta {
namespace {

/// What the user begins. What ends it may pass, so that no button stays down.
bool isOfUser(QEvent::Type type) {
    constexpr QEvent::Type types[] = {
        QEvent::MouseButtonPress, QEvent::MouseButtonDblClick, QEvent::Wheel,     QEvent::KeyPress, QEvent::Shortcut,
        QEvent::ContextMenu,      QEvent::InputMethod,         QEvent::DragEnter, QEvent::Drop};
    return std::ranges::find(types, type) != std::end(types);
}

const QWidget* WidgetAt(const QWindow& window, const QPointF& where) {
    const QWidget* top = QWidget::find(window.winId());
    const QWidget* child = top ? top->childAt(where.toPoint()) : nullptr;
    return child ? child : top;
}

}  // namespace

UserGate::UserGate(std::function<bool(const QWidget*)> mayHear) : mayHear_(std::move(mayHear)) {
    qApp->installEventFilter(this);
}

/// A click is judged when it reaches the window, since it moves the focus before its widget hears of it; a key when it
/// reaches its widget.
bool UserGate::eventFilter(QObject* watched, QEvent* event) {
    if (!isOfUser(event->type()) || QApplication::activeModalWidget()) return false;
    const auto* window = qobject_cast<const QWindow*>(watched);
    if (!window) return !mayHear_(qobject_cast<const QWidget*>(watched));
    if (!event->isSinglePointEvent()) return false;
    return !mayHear_(WidgetAt(*window, static_cast<const QSinglePointEvent*>(event)->position()));
}

}  // namespace horvanta
