#pragma once

#include <QAccessibleWidget>

namespace horvanta {

/// Gives the widgets of a class a role to screen readers, which pass over a widget of none, even one with the focus.
/// Doing so again changes nothing.
template <class WidgetKind, QAccessible::Role role>
void GiveRole() {
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* widget = qobject_cast<WidgetKind*>(object);
        return widget ? new QAccessibleWidget(widget, role) : nullptr;
    });
}

}  // namespace horvanta
