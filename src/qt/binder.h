#pragma once

#include "core/controls.h"

#include <QObject>

#include <functional>
#include <vector>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace horvanta {

/// A key by its code, 0 where windows don't know it, and the bits of `KeyShift`.
struct KeyPress {
    int code;
    int shift;
};

KeyPress KeyPressOf(const QKeyEvent& event);

/// Runs a user's act, after which the desktop draws. Acts may nest.
class Acts {
  public:
    virtual void Run(const std::function<void()>& act) = 0;

    /// True while what was last drawn has not been painted yet, so that repeats of a held key can be dropped.
    virtual bool isPaintPending() const = 0;

    /// True while the binders draw: what their widgets then report is no user's act.
    virtual bool isDrawing() const = 0;

  protected:
    ~Acts() = default;
};

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

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Bound {
        Control* control;
        QWidget* widget;
    };

    void Connect(const Bound& bound);
    void Clicked(Control& control);
    void KeepRoom(const Bound& bound);
    static bool BoxCalled(QObject* watched);
    void MouseActed(Control& control, const QMouseEvent& event);
    bool KeyActed(QObject* watched, const QKeyEvent& event);
    void FocusLeft(Control& control, Qt::FocusReason reason);
    Control* ControlOf(const QObject* widget) const;

    Form& form_;
    QWidget& root_;
    Acts& acts_;
    std::vector<Bound> bound_;
    const QObject* doubleClicked_ = nullptr;  ///< Its next release ends a double click.
};

}  // namespace horvanta
