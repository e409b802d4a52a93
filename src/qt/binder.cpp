#include "qt/binder.h"

#include "core/moment.h"
#include "qt/keys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>

#include <algorithm>
#include <ranges>
#include <utility>

namespace horvanta {
namespace {

constexpr double mainFontScale = 1.5;

void EnlargeFont(QWidget& widget) {
    QFont font = widget.font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * mainFontScale);
    widget.setFont(font);
}

void KeepRoom(Face& face) {
    if (!face.control.widest.empty()) face.KeepRoom();
}

}  // namespace

Binder::Binder(Form& form, QWidget& root, Acts& acts) : form_(form), root_(root), acts_(acts) {
    for (Control* control : form_.controls) {
        if (auto* widget = root_.findChild<QWidget*>(QString::fromStdString(control->name))) Bind(*control, *widget);
    }
    root_.installEventFilter(this);
    for (auto* widget : root_.findChildren<QWidget*>()) widget->installEventFilter(this);
    Draw();
}

void Binder::Bind(Control& control, QWidget& widget) {
    auto face = MakeFace(control, widget);
    if (!face) return;
    if (widget.property("main").toBool()) EnlargeFont(widget);
    KeepRoom(*face);
    face->Connect(acts_);
    faces_.push_back(std::move(face));
}

/// What has changed within a widget is told to the layout around it at once, inner ones first: the window is given its
/// size next.
void Binder::Draw() {
    ShowName(root_, QString::fromStdString(form_.text));
    for (const auto& face : faces_) face->Draw();
    for (const auto& face : faces_ | std::views::reverse) {
        QLayout* inside = face->widget.layout();
        if (inside && inside->activate()) face->widget.updateGeometry();
    }
}

QWidget* Binder::WidgetOf(const Control& control) const {
    const auto found = std::ranges::find_if(faces_, [&](const auto& face) { return &face->control == &control; });
    return found == faces_.end() ? nullptr : &(*found)->widget;
}

Face* Binder::FaceOf(const QObject* widget) const {
    const auto found = std::ranges::find_if(faces_, [&](const auto& face) { return &face->widget == widget; });
    return found == faces_.end() ? nullptr : found->get();
}

bool Binder::isHeardWhileBusy(const QWidget* widget) const {
    const Face* face = nullptr;
    while (widget && !(face = FaceOf(widget))) widget = widget->parentWidget();
    return face && face->control.whileBusy;
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyRelease) NoteRelease(static_cast<QKeyEvent&>(*event));
    if (event->type() == QEvent::KeyPress) return KeyActed(watched, static_cast<QKeyEvent&>(*event));
    if (watched == &root_ && event->type() == QEvent::ContextMenu) {
        return MenuAsked(nullptr, static_cast<QContextMenuEvent&>(*event));
    }
    Face* face = FaceOf(watched);
    if (!face) return false;
    switch (event->type()) {
        case QEvent::Shortcut: return face->TakeShortcut();
        case QEvent::MouseButtonDblClick: doubleClicked_ = watched; return false;
        case QEvent::MouseButtonRelease: MouseActed(*face, static_cast<QMouseEvent&>(*event)); return false;
        case QEvent::ContextMenu: return MenuAsked(face, static_cast<QContextMenuEvent&>(*event));
        case QEvent::FocusOut: FocusLeft(*face, static_cast<QFocusEvent*>(event)->reason()); return false;
        case QEvent::FontChange: KeepRoom(*face); return false;
        default: return false;
    }
}

/// Labels and group boxes have no signals of their own. The release that ends a double click is not another click.
void Binder::MouseActed(const Face& face, const QMouseEvent& event) {
    const bool ofDoubleClick = std::exchange(doubleClicked_, nullptr) == &face.widget;
    if (!face.isHit(event.position().toPoint())) return;
    const Control& control = face.control;
    if (event.button() == Qt::LeftButton) acts_.Fire(control, ofDoubleClick ? control.DblClick : control.Click);
}

/// A field that is right-clicked has its own menu of cutting and pasting. By a key there is the menu of the window.
bool Binder::MenuAsked(const Face* face, const QContextMenuEvent& event) {
    const bool byMouse = event.reason() == QContextMenuEvent::Mouse;
    if (byMouse && face && dynamic_cast<const TextField*>(&face->control)) return false;
    const bool isOwn = byMouse && face && face->control.RightClick;
    acts_.OpenMenu(isOwn ? face->control.RightClick : form_.OpenMenu, event.globalPos());
    return true;
}

/// While the program is busy, a key that its control does not use goes no further, nor moves the focus.
bool Binder::KeyActed(QObject* watched, const QKeyEvent& event) {
    if (watched != QApplication::focusWidget()) return false;
    if (isMenuKey(event)) {
        const auto& widget = static_cast<const QWidget&>(*watched);
        acts_.OpenMenu(form_.OpenMenu, widget.mapToGlobal(widget.rect().center()));
        return true;
    }
    Face* face = FaceOf(watched);
    const auto use = face ? face->TakeKey(event) : Face::KeyUse::Open;
    if (use != Face::KeyUse::Open) return use == Face::KeyUse::Used;
    return AskForKey(face ? &face->control : nullptr, event) || acts_.isBusy();
}

bool Binder::AskForKey(const Control* control, const QKeyEvent& event) {
    const bool controlAsked = control && control->KeyDown;
    const bool formAsked = form_.KeyDown && !acts_.isBusy();
    const auto [code, shift] = KeyPressOf(event);
    if (code == 0 || !(controlAsked || formAsked)) return false;
    if (event.isAutoRepeat() && acts_.isPaintPending()) return true;
    const bool isOwnSpace = controlAsked && code == KeySpace;  // in a field that has a use of its own for it
    const bool isWriting = dynamic_cast<const TextField*>(control) && (isWritingKey(code) || isOwnSpace);
    bool used = false;
    KeyHeld = isHeld(event);
    acts_.Run(
        [&, key = code, held = shift] {
            used = (controlAsked && control->KeyDown(key, held)) || (formAsked && form_.KeyDown(key, held));
        },
        {.whileBusy = control && control->whileBusy, .editing = isWriting});
    KeyHeld = false;
    return used;
}

/// Another window of the desktop coming forward, or a menu opening, does not end the editing.
void Binder::FocusLeft(Face& face, Qt::FocusReason reason) {
    const bool toMenu = reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
    if (acts_.isDrawing() || toMenu || QApplication::activeWindow() != root_.window()) return;
    face.Leave(acts_);
}

}  // namespace horvanta
