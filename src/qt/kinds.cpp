#include "qt/cell_grid_widget.h"
#include "qt/face.h"
#include "qt/grid_widget.h"
#include "qt/keys.h"
#include "qt/status_bar_widget.h"
#include "qt/up_down_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionGroupBox>
#include <QToolButton>

#include <algorithm>
#include <string>
#include <vector>

namespace horvanta {
namespace {

template <class ControlKind, class WidgetKind>
struct FaceOf : Face {
    using Shown = ControlKind;
    using By = WidgetKind;
    FaceOf(ControlKind& shown, WidgetKind& by) : Face(shown, by), shown_(shown), by_(by) {}

    ControlKind& shown_;
    WidgetKind& by_;
};

/// A kind that has a widget class made for it, which draws the control, keeps room in its parts and connects itself.
template <class ControlKind, class WidgetKind>
struct OwnFace final : FaceOf<ControlKind, WidgetKind> {
    using FaceOf<ControlKind, WidgetKind>::FaceOf;

    void KeepRoom() override {
        DrawKind();
        this->by_.KeepRoom(QString::fromStdString(this->shown_.widest));
    }
    void Connect(Acts& acts) override { this->by_.Connect(this->shown_, acts); }

    void DrawKind() override { this->by_.Draw(this->shown_); }
};

/// A label grows with a text that is wider than the one it keeps room for.
struct LabelFace final : FaceOf<Label, QLabel> {
    using FaceOf::FaceOf;

    void Connect(Acts&) override {
        by_.setTextFormat(Qt::PlainText);
        if (shown_.Click) by_.setCursor(Qt::PointingHandCursor);
    }
    bool isHit(const QPoint& where) const override { return by_.rect().contains(where); }

    QString Text() const override { return by_.text(); }
    void SetText(const QString& text) override {
        by_.setText(text);
        if (shown_.widest.empty()) return;
        by_.setMinimumWidth(std::max(by_.minimumWidth(), by_.sizeHint().width()));
    }
};

/// Outside of dialogs, buttons don't take Enter by themselves. A box that was clicked shows another state by itself,
/// which the drawing sets right even if nobody cares for the click.
template <class ControlKind, class WidgetKind>
struct ButtonFace : FaceOf<ControlKind, WidgetKind> {
    using FaceOf<ControlKind, WidgetKind>::FaceOf;

    void Connect(Acts& acts) override {
        const Control& button = this->shown_;
        QObject::connect(&this->by_, &QAbstractButton::clicked, &this->by_,
                         [&button, &acts] { acts.Fire(button, button.Click); });
    }
    Face::KeyUse TakeKey(const QKeyEvent& event) override {
        if (!isEnter(event)) return event.key() == Qt::Key_Space ? Face::KeyUse::Kept : Face::KeyUse::Open;
        if (!event.isAutoRepeat()) this->by_.click();
        return Face::KeyUse::Used;
    }
    QString Text() const override { return this->by_.text(); }
    void SetText(const QString& text) override { this->by_.setText(text); }
};

struct CheckBoxFace final : ButtonFace<CheckBox, QCheckBox> {
    using ButtonFace::ButtonFace;

    void Connect(Acts& acts) override {
        ButtonFace::Connect(acts);
        by_.setBackgroundRole(QPalette::Window);
    }

    /// Only an undecided box has three states, or else clicks would lead through the third.
    void DrawKind() override {
        constexpr Qt::CheckState states[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
        const CheckState state = shown_.State();
        by_.setTristate(state == Undecided);
        by_.setCheckState(states[state]);
    }
};

struct OptionButtonFace final : ButtonFace<OptionButton, QRadioButton> {
    using ButtonFace::ButtonFace;

    void DrawKind() override { by_.setChecked(shown_.isChosen()); }
};

struct TextFieldFace final : FaceOf<TextField, QLineEdit> {
    using FaceOf::FaceOf;

    void KeepRoom() override {
        const QString withMargins = QString::fromStdString(shown_.widest) + QStringLiteral("00");
        by_.setMinimumWidth(by_.fontMetrics().horizontalAdvance(withMargins));
    }
    void Connect(Acts& acts) override {
        QObject::connect(&by_, &QLineEdit::textEdited, &by_,
                         [this](const QString& typed) { shown_.text = typed.toStdString(); });
        QObject::connect(&by_, &QLineEdit::returnPressed, &by_, [this, &acts] { Leave(acts); });
    }

    /// What is typed behind the untouched text of a window's main field takes its place. There Home is the window's, as
    /// everywhere but in fields.
    KeyUse TakeKey(const QKeyEvent& event) override {
        const bool typed = !event.text().isEmpty() && event.text().front().isPrint() && !event.text().front().isSpace();
        const bool untouched = !by_.isModified() && by_.cursorPosition() == by_.text().size();
        const bool main = by_.property("main").toBool();
        if (typed && untouched && main) by_.selectAll();
        const bool edits = isEditingKey(event) || (!main && event.matches(QKeySequence::MoveToStartOfLine));
        return isEnter(event) || edits ? KeyUse::Kept : KeyUse::Open;
    }
    void Leave(Acts& acts) override { acts.Fire(shown_, shown_.LostFocus); }

    Roles ColorRoles() const override { return {QPalette::Base, QPalette::Text}; }
    QString Text() const override { return by_.text(); }
    void SetText(const QString& text) override { by_.setText(text); }
};

struct GroupBoxFace final : FaceOf<GroupBox, QGroupBox> {
    using FaceOf::FaceOf;

    /// It is clicked on its caption or its line, not between what it holds.
    bool isHit(const QPoint& where) const override {
        QStyleOptionGroupBox option;
        option.initFrom(&by_);
        option.text = by_.title();
        option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        const QRect contents =
            by_.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, &by_);
        return by_.rect().contains(where) && !contents.contains(where);
    }

    /// Leads to its field, where the toolkit would prefer a chosen option.
    bool TakeShortcut() override {
        auto* field = by_.findChild<QLineEdit*>();
        if (field) field->setFocus(Qt::ShortcutFocusReason);
        return field != nullptr;
    }

    QString Text() const override { return by_.title(); }
    void SetText(const QString& text) override { by_.setTitle(text); }
};

struct ChoiceListFace final : FaceOf<ChoiceList, QComboBox> {
    using FaceOf::FaceOf;

    void KeepRoom() override {
        by_.addItem(QString::fromStdString(shown_.widest));
        by_.setMinimumWidth(by_.sizeHint().width());
        by_.removeItem(by_.count() - 1);
    }
    void Connect(Acts& acts) override {
        QObject::connect(&by_, &QComboBox::activated, &by_, [this, &acts](int index) {
            shown_.selected = index;
            acts.Fire(shown_, shown_.Chosen);
        });
    }
    KeyUse TakeKey(const QKeyEvent& event) override { return isListKey(event) ? KeyUse::Kept : KeyUse::Open; }

    Roles ColorRoles() const override { return {QPalette::Button, QPalette::ButtonText}; }

    void DrawKind() override {
        if (items_ != shown_.items) {
            items_ = shown_.items;
            by_.clear();
            for (const std::string& item : items_) by_.addItem(QString::fromStdString(item));
        }
        if (by_.currentIndex() != shown_.selected) by_.setCurrentIndex(shown_.selected);
    }

    std::vector<std::string> items_;  ///< As they stand in the widget.
};

struct Kind {
    std::unique_ptr<Face> (*make)(Control& control, QWidget& widget);  ///< Null unless both are of the kind.
    bool (*isShownBy)(const QWidget& widget);
};

template <class KindFace>
constexpr Kind KindOf = {
    [](Control& control, QWidget& widget) -> std::unique_ptr<Face> {
        auto* shown = dynamic_cast<typename KindFace::Shown*>(&control);
        auto* by = qobject_cast<typename KindFace::By*>(&widget);
        return shown && by ? std::make_unique<KindFace>(*shown, *by) : nullptr;
    },
    [](const QWidget& widget) { return qobject_cast<const typename KindFace::By*>(&widget) != nullptr; },
};

constexpr Kind kinds[] = {
    KindOf<LabelFace>,
    KindOf<ButtonFace<Button, QPushButton>>,
    KindOf<ButtonFace<Button, QToolButton>>,
    KindOf<CheckBoxFace>,
    KindOf<OptionButtonFace>,
    KindOf<TextFieldFace>,
    KindOf<GroupBoxFace>,
    KindOf<ChoiceListFace>,
    KindOf<OwnFace<UpDown, UpDownWidget>>,
    KindOf<OwnFace<StatusBar, StatusBarWidget>>,
    KindOf<OwnFace<CellGrid, CellGridWidget>>,
    KindOf<OwnFace<Grid, GridWidget>>,
};

}  // namespace

std::unique_ptr<Face> MakeFace(Control& control, QWidget& widget) {
    for (const Kind& kind : kinds) {
        if (auto face = kind.make(control, widget)) return face;
    }
    return nullptr;
}

/// Parts bear no name.
bool isFace(const QWidget& widget) {
    const auto shows = [&widget](const Kind& kind) { return kind.isShownBy(widget); };
    return !widget.objectName().isEmpty() && std::ranges::any_of(kinds, shows);
}

}  // namespace horvanta
