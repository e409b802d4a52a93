#pragma once

#include "core/controls.h"

#include <QPalette>
#include <QPoint>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <utility>

class QKeyEvent;

namespace horvanta {

/// What an act is besides a command, which a busy program does not hear and which ends the editing of a field.
struct ActKind {
    bool whileBusy = false;  ///< It is heard while a long command lets events run.
    bool editing = false;    ///< It is a part of the editing.
};

/// Runs a user's act, after which the desktop draws. Acts may nest.
class Acts {
  public:
    /// While a long command lets events run, only acts on controls that hear them then are run.
    virtual void Run(const std::function<void()>& act, ActKind kind = {}) = 0;

    /// Runs a callback of a control; the desktop draws even where there is none.
    template <class... Values>
    void Fire(const Control& control, const std::function<void(Values...)>& callback, Values... values) {
        Run([&] { callback ? callback(values...) : void(); }, {.whileBusy = control.whileBusy});
    }

    /// Opens the menu that an act asks for there on the screen.
    virtual void OpenMenu(const std::function<void()>& act, const QPoint& where) = 0;

    /// True while what was last drawn has not been painted yet, so that repeats of a held key can be dropped.
    virtual bool isPaintPending() const = 0;

    /// True while the binders draw: what their widgets then report is no user's act.
    virtual bool isDrawing() const = 0;

    /// True while a long command lets events run.
    virtual bool isBusy() const = 0;

  protected:
    ~Acts() = default;
};

QColor ToQColor(Color color);

/// A control and the widget that shows it. Each kind of control has a class of it.
class Face {
  public:
    Face(Control& shown, QWidget& by) : control(shown), widget(by) {}
    virtual ~Face() = default;
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    /// Sets on the widget what differs from the control.
    void Draw();

    /// Keeps room for the widest text that the control may come to show, so that the window keeps its size from day to
    /// day.
    virtual void KeepRoom();

    /// Has the user's acts on the widget fire the callbacks of the control.
    virtual void Connect(Acts&) {}

    /// Whether a click there is one on the control, as long as its widget does not tell of clicks by itself.
    virtual bool isHit(const QPoint&) const { return false; }

    /// Hears of a key before all others and says what they may do with it: ask for it, or leave it to the widget, or
    /// that it has been used up.
    enum class KeyUse { Open, Kept, Used };
    virtual KeyUse TakeKey(const QKeyEvent&) { return KeyUse::Open; }

    /// Answers the access key of its caption; true if the widget need not.
    virtual bool TakeShortcut() { return false; }

    /// The user took the focus elsewhere.
    virtual void Leave(Acts&) {}

    Control& control;
    QWidget& widget;

  protected:
    /// Draws what its kind has beside the properties of all controls.
    virtual void DrawKind() {}

    /// The text of the control on the widget, where the widget shows just that.
    virtual QString Text() const { return {}; }
    virtual void SetText(const QString&) {}

    /// What the widget paints its background and its text with.
    using Roles = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
    virtual Roles ColorRoles() const { return {QPalette::Window, QPalette::WindowText}; }

    /// The background to give to the widget so that it looks as chosen.
    virtual QColor GroundOf(const ColorPair& colors) const { return ToQColor(colors.background); }

  private:
    void DrawColors();
};

/// Shows a control by a widget; null where the widget is not of the control's kind.
std::unique_ptr<Face> MakeFace(Control& control, QWidget& widget);

/// Whether a widget is there to show a control, rather than being a part of one or mere layout.
bool isFace(const QWidget& widget);

Color ToColor(const QColor& color);

// These set only what differs: widgets pass on even what they had already.
void ShowTip(QWidget& widget, const std::string& tooltip);
void ShowName(QWidget& widget, const QString& accessible);

}  // namespace horvanta
