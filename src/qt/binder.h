#pragma once

#include "core/controls.h"
#include "qt/face.h"

#include <QObject>

#include <memory>
#include <vector>

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;

namespace horvanta {

/// Ties the controls of a form to the widgets of the same object name: draws the controls' data on the widgets and
/// fires the controls' callbacks when the user acts on them.
class Binder final : public QObject {
    Q_OBJECT
  public:
    Binder(Form& form, QWidget& root, Acts& acts);

    /// Sets on each widget what differs from its control.
    void Draw();

    /// The widget of a control; null if the form has none.
    QWidget* WidgetOf(const Control& control) const;

    /// Whether a widget is, or is a part of, that of a control which hears the user while a long command lets events
    /// run.
    bool isHeardWhileBusy(const QWidget* widget) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Bind(Control& control, QWidget& widget);
    bool MenuAsked(const Face* face, const QContextMenuEvent& event);
    void MouseActed(const Face& face, const QMouseEvent& event);
    bool KeyActed(QObject* watched, const QKeyEvent& event);
    bool AskForKey(const Control* control, const QKeyEvent& event);
    void FocusLeft(Face& face, Qt::FocusReason reason);
    Face* FaceOf(const QObject* widget) const;

    Form& form_;
    QWidget& root_;
    Acts& acts_;
    std::vector<std::unique_ptr<Face>> faces_;
    const QObject* doubleClicked_ = nullptr;  ///< Its next release ends a double click.
};

}  // namespace horvanta
