#include "qt/binder.h"

#include "qt/arrow_pair.h"
#include "qt/month_grid.h"
#include "qt/panel_bar.h"
#include "qt/text_grid.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRadioButton>
#include <QStyleOptionGroupBox>

#include <algorithm>
#include <optional>
#include <ranges>
#include <utility>

namespace horvanta {
namespace {

constexpr double mainFontScale = 1.5;

struct KeyRow {
    int qtKey;
    bool keypad;
    KeyCode code;
};

constexpr KeyRow keyRows[] = {
    {Qt::Key_Backspace, false, KeyBackspace},
    {Qt::Key_Return, false, KeyEnter},
    {Qt::Key_Enter, true, KeyEnter},
    {Qt::Key_Shift, false, KeyShiftItself},
    {Qt::Key_Pause, false, KeyPause},
    {Qt::Key_Escape, false, KeyEscape},
    {Qt::Key_Space, false, KeySpace},
    {Qt::Key_PageUp, false, KeyPageUp},
    {Qt::Key_PageDown, false, KeyPageDown},
    {Qt::Key_End, false, KeyEnd},
    {Qt::Key_Home, false, KeyHome},
    {Qt::Key_Left, false, KeyLeft},
    {Qt::Key_Up, false, KeyUp},
    {Qt::Key_Right, false, KeyRight},
    {Qt::Key_Down, false, KeyDown},
    {Qt::Key_0, true, KeyNumeric0},
    {Qt::Key_2, true, KeyNumeric2},
    {Qt::Key_4, true, KeyNumeric4},
    {Qt::Key_5, true, KeyNumeric5},
    {Qt::Key_6, true, KeyNumeric6},
    {Qt::Key_8, true, KeyNumeric8},
    {Qt::Key_Period, true, KeyNumericPoint},
    {Qt::Key_Comma, true, KeyNumericPoint},
    {Qt::Key_Plus, true, KeyNumericPlus},
    {Qt::Key_Minus, true, KeyNumericMinus},
    {Qt::Key_Plus, false, KeyPlus},
    {Qt::Key_Equal, false, KeyPlus},
    {Qt::Key_Minus, false, KeyMinus},
    {Qt::Key_Underscore, false, KeyMinus},
};

/// Rows for the keypad hold there alone.
int CodeOf(const QKeyEvent& event) {
    const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
    for (const KeyRow& row : keyRows) {
        if (row.qtKey == event.key() && (keypad || !row.keypad)) return row.code;
    }
    return 0;
}

int ShiftOf(Qt::KeyboardModifiers held) {
    return (held.testFlag(Qt::ShiftModifier) ? ShiftKey : 0) | (held.testFlag(Qt::ControlModifier) ? ControlKey : 0) |
           (held.testFlag(Qt::AltModifier) ? AltKey : 0);
}

/// What edits a line of text. Home alone is not among them: it is a key of the windows.
constexpr QKeySequence::StandardKey editingKeys[] = {
    QKeySequence::MoveToNextChar,
    QKeySequence::MoveToPreviousChar,
    QKeySequence::MoveToNextWord,
    QKeySequence::MoveToPreviousWord,
    QKeySequence::MoveToEndOfLine,
    QKeySequence::MoveToStartOfDocument,
    QKeySequence::MoveToEndOfDocument,
    QKeySequence::SelectNextChar,
    QKeySequence::SelectPreviousChar,
    QKeySequence::SelectNextWord,
    QKeySequence::SelectPreviousWord,
    QKeySequence::SelectStartOfLine,
    QKeySequence::SelectEndOfLine,
    QKeySequence::SelectStartOfDocument,
    QKeySequence::SelectEndOfDocument,
    QKeySequence::Backspace,
    QKeySequence::Delete,
};

bool isEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

/// What moves in a list or opens it.
bool isListKey(const QKeyEvent& event) {
    constexpr int keys[] = {Qt::Key_Up,   Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                            Qt::Key_Home, Qt::Key_End,  Qt::Key_Space};
    return std::find(std::begin(keys), std::end(keys), event.key()) != std::end(keys);
}

/// What is typed behind the untouched text of a window's main field takes its place.
void SelectUntouched(QLineEdit& field, const QKeyEvent& event) {
    const bool typed = !event.text().isEmpty() && event.text().front().isPrint() && !event.text().front().isSpace();
    const bool untouched = !field.isModified() && field.cursorPosition() == field.text().size();
    if (typed && untouched && field.property("main").toBool()) field.selectAll();
}

/// Keys that a focused widget keeps to itself.
bool isKept(const QObject* focused, const QKeyEvent& event) {
    if (qobject_cast<const QAbstractButton*>(focused)) return event.key() == Qt::Key_Space || isEnter(event);
    if (qobject_cast<const QComboBox*>(focused)) return isListKey(event);
    if (!qobject_cast<const QLineEdit*>(focused)) return false;
    if (isEnter(event)) return true;
    return std::any_of(std::begin(editingKeys), std::end(editingKeys),
                       [&](QKeySequence::StandardKey key) { return event.matches(key); });
}

QString TextOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) return field->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) return box->title();
    return {};
}

void SetText(QWidget& widget, const QString& text) {
    if (auto* label = qobject_cast<QLabel*>(&widget)) label->setText(text);
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) button->setText(text);
    if (auto* field = qobject_cast<QLineEdit*>(&widget)) field->setText(text);
    if (auto* box = qobject_cast<QGroupBox*>(&widget)) box->setTitle(text);
}

QColor ToQColor(Color color) { return {color.red, color.green, color.blue}; }

/// What a kind of widget paints its background and its text with.
std::pair<QPalette::ColorRole, QPalette::ColorRole> RolesOf(const QWidget& widget) {
    if (qobject_cast<const QLineEdit*>(&widget)) return {QPalette::Base, QPalette::Text};
    if (qobject_cast<const QComboBox*>(&widget)) return {QPalette::Button, QPalette::ButtonText};
    return {QPalette::Window, QPalette::WindowText};
}

/// Without colours the widget goes back to the desktop's.
void SetColors(QWidget& widget, const std::optional<ColorPair>& colors) {
    if (!colors) {
        if (!widget.testAttribute(Qt::WA_SetPalette)) return;
        widget.setPalette(QPalette());
        widget.setAutoFillBackground(false);
        return;
    }
    const auto [background, foreground] = RolesOf(widget);
    QPalette palette = widget.palette();
    palette.setColor(background, ToQColor(colors->background));
    palette.setColor(foreground, ToQColor(colors->foreground));
    if (palette == widget.palette()) return;
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

/// Only an undecided box has three states, or else clicks would lead through the third.
void SetState(QCheckBox& box, CheckState state) {
    constexpr Qt::CheckState shown[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
    box.setTristate(state == Undecided);
    box.setCheckState(shown[state]);
}

/// A group box is clicked on its caption or its line, not between what it holds.
bool isHit(const QWidget& widget, const QPoint& where) {
    const auto* box = qobject_cast<const QGroupBox*>(&widget);
    if (!box) return qobject_cast<const QLabel*>(&widget) && widget.rect().contains(where);
    QStyleOptionGroupBox option;
    option.initFrom(box);
    option.text = box->title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    const QRect contents = box->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, box);
    return box->rect().contains(where) && !contents.contains(where);
}

void DrawList(const ChoiceList& choices, QComboBox& list) {
    const int count = static_cast<int>(choices.items.size());
    bool same = list.count() == count;
    for (int i = 0; same && i < count; ++i) {
        same = list.itemText(i) == QString::fromStdString(choices.items[static_cast<std::size_t>(i)]);
    }
    if (!same) {
        list.clear();
        for (const std::string& item : choices.items) list.addItem(QString::fromStdString(item));
    }
    if (list.currentIndex() != choices.selected) list.setCurrentIndex(choices.selected);
}

void DrawControl(const Control& control, QWidget& widget) {
    const auto differs = [](const QString& shown, const std::string& text) {
        return shown != QString::fromStdString(text);
    };
    if (differs(TextOf(widget), control.text)) {
        SetText(widget, QString::fromStdString(control.text));
        const bool outgrown = !control.widest.empty() && widget.sizeHint().width() > widget.minimumWidth();
        if (outgrown && qobject_cast<QLabel*>(&widget)) widget.setMinimumWidth(widget.sizeHint().width());
    }
    if (differs(widget.toolTip(), control.tooltip)) widget.setToolTip(QString::fromStdString(control.tooltip));
    const std::string accessible = AccessibleName(control);
    if (differs(widget.accessibleName(), accessible)) widget.setAccessibleName(QString::fromStdString(accessible));
    if (widget.isVisibleTo(widget.parentWidget()) != control.visible) widget.setVisible(control.visible);
    if (widget.isEnabled() != control.enabled) widget.setEnabled(control.enabled);
    SetColors(widget, control.colors);
    if (auto* box = qobject_cast<QCheckBox*>(&widget)) SetState(*box, static_cast<const CheckBox&>(control).State());
    if (auto* option = qobject_cast<QRadioButton*>(&widget)) {
        option->setChecked(static_cast<const OptionButton&>(control).isChosen());
    }
    if (auto* bar = qobject_cast<PanelBar*>(&widget)) bar->Draw(static_cast<const StatusBar&>(control));
    if (auto* arrows = qobject_cast<ArrowPair*>(&widget)) arrows->Draw(static_cast<const UpDown&>(control));
    if (auto* list = qobject_cast<QComboBox*>(&widget)) DrawList(static_cast<const ChoiceList&>(control), *list);
    if (auto* grid = qobject_cast<MonthGrid*>(&widget)) grid->Draw(static_cast<const CellGrid&>(control));
    if (auto* grid = qobject_cast<TextGrid*>(&widget)) grid->Draw(static_cast<const Grid&>(control));
}

void EnlargeFont(QWidget& widget) {
    QFont font = widget.font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * mainFontScale);
    widget.setFont(font);
}

}  // namespace

KeyPress KeyPressOf(const QKeyEvent& event) { return {CodeOf(event), ShiftOf(event.modifiers())}; }

Binder::Binder(Form& form, QWidget& root, Acts& acts) : form_(form), root_(root), acts_(acts) {
    for (Control* control : form_.controls) {
        if (auto* widget = root_.findChild<QWidget*>(QString::fromStdString(control->name))) {
            bound_.push_back({control, widget});
        }
    }
    for (const Bound& bound : bound_) {
        if (bound.widget->property("main").toBool()) EnlargeFont(*bound.widget);
        KeepRoom(bound);
        Connect(bound);
    }
    root_.setAccessibleName(QString::fromStdString(form_.text));
    root_.installEventFilter(this);
    for (auto* widget : root_.findChildren<QWidget*>()) widget->installEventFilter(this);
    Draw();
}

void Binder::Connect(const Bound& bound) {
    Control* control = bound.control;
    if (auto* button = qobject_cast<QAbstractButton*>(bound.widget)) {
        connect(button, &QAbstractButton::clicked, this, [this, control] { Clicked(*control); });
    }
    if (auto* box = qobject_cast<QCheckBox*>(bound.widget)) box->setBackgroundRole(QPalette::Window);
    if (auto* bar = qobject_cast<PanelBar*>(bound.widget)) {
        auto* panels = static_cast<StatusBar*>(control);
        if (panels->PanelClick) bar->setCursor(Qt::PointingHandCursor);
        connect(bar, &PanelBar::panelClicked, this, [this, panels](std::size_t index) {
            if (panels->PanelClick) acts_.Run([panels, index] { panels->PanelClick(index); });
        });
    }
    if (auto* arrows = qobject_cast<ArrowPair*>(bound.widget)) {
        auto* pair = static_cast<UpDown*>(control);
        connect(arrows, &ArrowPair::stepped, this, [this, pair](int direction) {
            const int shift = ShiftOf(QGuiApplication::keyboardModifiers());
            if (pair->Step) acts_.Run([pair, direction, shift] { pair->Step(direction, shift); });
        });
    }
    if (auto* list = qobject_cast<QComboBox*>(bound.widget)) {
        auto* choices = static_cast<ChoiceList*>(control);
        connect(list, &QComboBox::activated, this, [this, choices](int index) {
            choices->selected = index;
            acts_.Run(choices->Chosen);
        });
    }
    if (auto* grid = qobject_cast<MonthGrid*>(bound.widget)) {
        auto* cells = static_cast<CellGrid*>(control);
        connect(grid, &MonthGrid::cellClicked, this,
                [this, cells](std::size_t cell) { acts_.Run([cells, cell] { cells->CellClick(cell); }); });
    }
    if (auto* grid = qobject_cast<TextGrid*>(bound.widget)) {
        auto* cells = static_cast<Grid*>(control);
        connect(grid, &TextGrid::cellClicked, this, [this, cells](std::size_t row, std::size_t column) {
            acts_.Run([cells, row, column] { cells->CellClick(row, column); });
        });
    }
    if (auto* field = qobject_cast<QLineEdit*>(bound.widget)) {
        auto* text = static_cast<TextField*>(control);
        connect(field, &QLineEdit::textEdited, this,
                [text](const QString& typed) { text->text = typed.toStdString(); });
        connect(field, &QLineEdit::returnPressed, this, [this, text] { acts_.Run(text->LostFocus); });
    }
    if (auto* label = qobject_cast<QLabel*>(bound.widget)) {
        label->setTextFormat(Qt::PlainText);
        if (control->Click) label->setCursor(Qt::PointingHandCursor);
    }
}

/// A check box that was clicked shows another state by itself, which the drawing sets right even if nobody cares for
/// the click.
void Binder::Clicked(Control& control) {
    acts_.Run([&] {
        if (control.Click) control.Click();
    });
}

/// Room for the widest text that the control may come to show, so that the window keeps its size from day to day.
void Binder::KeepRoom(const Bound& bound) {
    if (bound.control->widest.empty()) return;
    const QString widest = QString::fromStdString(bound.control->widest);
    QWidget& widget = *bound.widget;
    if (qobject_cast<QLineEdit*>(&widget)) {
        const QString withMargins = widest + QStringLiteral("00");
        widget.setMinimumWidth(widget.fontMetrics().horizontalAdvance(withMargins));
        return;
    }
    if (auto* bar = qobject_cast<PanelBar*>(&widget)) {
        bar->Draw(static_cast<const StatusBar&>(*bound.control));
        bar->KeepRoom(widest);
        return;
    }
    if (auto* grid = qobject_cast<MonthGrid*>(&widget)) {
        grid->KeepRoom(widest);
        return;
    }
    if (auto* list = qobject_cast<QComboBox*>(&widget)) {
        list->addItem(widest);
        widget.setMinimumWidth(widget.sizeHint().width());
        list->removeItem(list->count() - 1);
        return;
    }
    if (auto* grid = qobject_cast<TextGrid*>(&widget)) {
        grid->Draw(static_cast<const Grid&>(*bound.control));
        grid->KeepRoom(widest);
        return;
    }
    const QString shown = TextOf(widget);
    SetText(widget, widest);
    widget.setMinimumWidth(widget.sizeHint().width());
    SetText(widget, shown);
}

/// What has changed within a widget is told to the layout around it at once, inner ones first: the window is given its
/// size next.
void Binder::Draw() {
    for (const auto& [control, widget] : bound_) DrawControl(*control, *widget);
    for (const Bound& bound : bound_ | std::views::reverse) {
        QLayout* inside = bound.widget->layout();
        if (inside && inside->activate()) bound.widget->updateGeometry();
    }
}

QWidget* Binder::WidgetOf(const Control& control) const {
    const auto found =
        std::find_if(bound_.begin(), bound_.end(), [&](const Bound& b) { return b.control == &control; });
    return found == bound_.end() ? nullptr : found->widget;
}

Control* Binder::ControlOf(const QObject* widget) const {
    const auto found = std::find_if(bound_.begin(), bound_.end(), [&](const Bound& b) { return b.widget == widget; });
    return found == bound_.end() ? nullptr : found->control;
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
    Control* control = ControlOf(watched);
    switch (event->type()) {
        case QEvent::KeyPress: return KeyActed(watched, static_cast<QKeyEvent&>(*event));
        case QEvent::Shortcut: return BoxCalled(watched);
        case QEvent::MouseButtonDblClick:
            if (control) doubleClicked_ = watched;
            return false;
        case QEvent::MouseButtonRelease:
            if (control) MouseActed(*control, static_cast<QMouseEvent&>(*event));
            return false;
        case QEvent::FocusOut:
            if (control) FocusLeft(*control, static_cast<QFocusEvent*>(event)->reason());
            return false;
        case QEvent::FontChange:
            if (control) KeepRoom({control, static_cast<QWidget*>(watched)});
            return false;
        default: return false;
    }
}

/// The access key of a group box leads to its field, where the toolkit would prefer a chosen option.
bool Binder::BoxCalled(QObject* watched) {
    const auto* box = qobject_cast<const QGroupBox*>(watched);
    auto* field = box ? box->findChild<QLineEdit*>() : nullptr;
    if (field) field->setFocus(Qt::ShortcutFocusReason);
    return field != nullptr;
}

/// Labels and group boxes have no signals of their own. The release that ends a double click is not another click.
void Binder::MouseActed(Control& control, const QMouseEvent& event) {
    const QWidget* widget = WidgetOf(control);
    const bool ofDoubleClick = std::exchange(doubleClicked_, nullptr) == widget;
    if (!isHit(*widget, event.position().toPoint())) return;
    if (event.button() == Qt::RightButton) acts_.Run(control.RightClick);
    if (event.button() == Qt::LeftButton) acts_.Run(ofDoubleClick ? control.DblClick : control.Click);
}

/// Outside of dialogs, buttons don't take Enter by themselves.
bool Binder::KeyActed(QObject* watched, const QKeyEvent& event) {
    if (watched != QApplication::focusWidget()) return false;
    if (auto* button = qobject_cast<QAbstractButton*>(watched); button && isEnter(event)) {
        if (!event.isAutoRepeat()) button->click();
        return true;
    }
    if (auto* field = qobject_cast<QLineEdit*>(watched)) SelectUntouched(*field, event);
    const KeyPress key = KeyPressOf(event);
    const Control* control = ControlOf(watched);
    const bool isAsked = form_.KeyDown || (control && control->KeyDown);
    if (key.code == 0 || !isAsked || isKept(watched, event)) return false;
    if (event.isAutoRepeat() && acts_.isPaintPending()) return true;
    bool used = false;
    acts_.Run([&] {
        used = (control && control->KeyDown && control->KeyDown(key.code, key.shift)) ||
               (form_.KeyDown && form_.KeyDown(key.code, key.shift));
    });
    return used;
}

/// Another window of the desktop coming forward, or a menu opening, does not end the editing.
void Binder::FocusLeft(Control& control, Qt::FocusReason reason) {
    auto* field = dynamic_cast<TextField*>(&control);
    const bool toMenu = reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
    if (!field || acts_.isDrawing() || toMenu) return;
    if (QApplication::activeWindow() != root_.window()) return;
    acts_.Run(field->LostFocus);
}

}  // namespace horvanta
