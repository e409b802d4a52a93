#include "qt/cell_grid_widget.h"
#include "qt/day_strip_widget.h"
#include "qt/face.h"
#include "qt/grid_widget.h"
#include "qt/keys.h"
#include "qt/moon_picture_widget.h"
#include "qt/row_table_widget.h"
#include "qt/status_bar_widget.h"
#include "qt/up_down_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMargins>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionGroupBox>
#include <QToolButton>

#include <algorithm>
#include <string>
#include <vector>

namespace horvanta {
namespace {

/// Shows the text of the control where the widget has one.
template <class ControlKind, class WidgetKind>
struct FaceOf : Face {
    using Shown = ControlKind;
    using By = WidgetKind;
    FaceOf(ControlKind& c, WidgetKind& w) : Face(c, w), shown(c), by(w) {}

    QString Text() const override {
        if constexpr (requires { by.text(); }) return by.text();
        return {};
    }
    void SetText(const QString& text) override {
        if constexpr (requires { by.setText(text); }) by.setText(text);
    }

    ControlKind& shown;
    WidgetKind& by;
};

/// A kind that has a widget class made for it, which draws the control, keeps room in its parts and connects itself.
template <class ControlKind, class WidgetKind>
struct OwnFace final : FaceOf<ControlKind, WidgetKind> {
    using FaceOf<ControlKind, WidgetKind>::FaceOf;

    void KeepRoom() override {
        DrawKind();
        this->by.KeepRoom(QString::fromStdString(this->shown.widest));
    }
    void Connect(Acts& acts) override { this->by.Connect(this->shown, acts); }
    Face::KeyUse TakeKey(const QKeyEvent& event) override {
        bool kept = false;
        if constexpr (requires { WidgetKind::Keeps(event); }) kept = WidgetKind::Keeps(event);
        return kept ? Face::KeyUse::Kept : Face::KeyUse::Open;
    }

    void DrawKind() override { this->by.Draw(this->shown); }
};

/// A label grows with a text that is wider than the one it keeps room for.
struct LabelFace final : FaceOf<Label, QLabel> {
    using FaceOf::FaceOf;

    void Connect(Acts&) override {
        by.setTextFormat(Qt::PlainText);
        if (shown.Click) by.setCursor(Qt::PointingHandCursor);
    }
    bool isHit(const QPoint& where) const override { return by.rect().contains(where); }

    /// Without showing it: a label lays a text out anew for each of its hints.
    void KeepRoom() override {
        const QMargins frame = by.contentsMargins() + by.margin();
        const int width = by.fontMetrics().horizontalAdvance(QString::fromStdString(shown.widest));
        by.setMinimumWidth(frame.left() + width + frame.right() + 1);
    }
    void SetText(const QString& text) override {
        by.setText(text);
        if (shown.widest.empty()) return;
        by.setMinimumWidth(std::max(by.minimumWidth(), by.sizeHint().width()));
    }
};

/// Outside of dialogs, buttons don't take Enter by themselves. A box that was clicked shows another state by itself,
/// which the drawing sets right even if nobody cares for the click.
template <class ControlKind, class WidgetKind>
struct ButtonFace : FaceOf<ControlKind, WidgetKind> {
    using FaceOf<ControlKind, WidgetKind>::FaceOf;

    void Connect(Acts& acts) override {
        const Control& button = this->shown;
        QObject::connect(&this->by, &QAbstractButton::clicked, &this->by,
                         [&button, &acts] { acts.Fire(button, button.Click); });
    }
    Face::KeyUse TakeKey(const QKeyEvent& event) override {
        if (!isEnter(event)) return event.key() == Qt::Key_Space ? Face::KeyUse::Kept : Face::KeyUse::Open;
        if (!event.isAutoRepeat()) this->by.click();
        return Face::KeyUse::Used;
    }
};

struct CheckBoxFace final : ButtonFace<CheckBox, QCheckBox> {
    using ButtonFace::ButtonFace;

    void Connect(Acts& acts) override {
        ButtonFace::Connect(acts);
        by.setBackgroundRole(QPalette::Window);
    }

    /// Only an undecided box has three states, or else clicks would lead through the third.
    void DrawKind() override {
        constexpr Qt::CheckState states[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
        const CheckState state = shown.State();
        by.setTristate(state == Undecided);
        by.setCheckState(states[state]);
    }
};

struct OptionButtonFace final : ButtonFace<OptionButton, QRadioButton> {
    using ButtonFace::ButtonFace;

    void DrawKind() override { by.setChecked(shown.isChosen()); }
};

struct TextFieldFace final : FaceOf<TextField, QLineEdit> {
    using FaceOf::FaceOf;

    void KeepRoom() override {
        const QString withMargins = QString::fromStdString(shown.widest) + QStringLiteral("00");
        by.setMinimumWidth(by.fontMetrics().horizontalAdvance(withMargins));
    }
    void Connect(Acts& acts) override {
        by.setReadOnly(shown.readOnly);
        QObject::connect(&by, &QLineEdit::textEdited, &by,
                         [this, &acts](const QString& typed) { Edit(typed.toStdString(), acts); });
        QObject::connect(&by, &QLineEdit::returnPressed, &by, [this, &acts] {
            acts.Run([this] { shown.Enter(); }, {.whileBusy = shown.whileBusy, .editing = true});
        });
    }

    /// What counts at once is an act of its own.
    void Edit(const std::string& typed, Acts& acts) {
        if (shown.Typed) {
            acts.Run([&] { shown.Edit(typed); }, {.whileBusy = shown.whileBusy, .editing = true});
        } else {
            shown.Edit(typed);
        }
    }

    /// What is typed behind the untouched text of a window's main field takes its place. There Home is the window's, as
    /// everywhere but in fields.
    KeyUse TakeKey(const QKeyEvent& event) override {
        if (event.key() == Qt::Key_Escape && shown.Restore()) {
            Draw();
            return KeyUse::Used;
        }
        const bool typed = !event.text().isEmpty() && event.text().front().isPrint() && !event.text().front().isSpace();
        const bool untouched = !by.isModified() && by.cursorPosition() == by.text().size();
        const bool main = by.property("main").toBool();
        if (typed && untouched && main) by.selectAll();
        const bool edits = isEditingKey(event) || (!main && event.matches(QKeySequence::MoveToStartOfLine));
        return isEnter(event) || edits ? KeyUse::Kept : KeyUse::Open;
    }
    void Leave(Acts& acts) override {
        acts.Run([this] { shown.Leave(); }, {.whileBusy = shown.whileBusy, .editing = true});
    }

    /// A text that was taken is as untouched as one that the program wrote.
    void DrawKind() override {
        if (!shown.isEdited()) by.setModified(false);
    }

    Roles ColorRoles() const override { return {QPalette::Base, QPalette::Text}; }
};

struct GroupBoxFace final : FaceOf<GroupBox, QGroupBox> {
    using FaceOf::FaceOf;

    /// It is clicked on its caption or its line, not between what it holds.
    bool isHit(const QPoint& where) const override {
        QStyleOptionGroupBox option;
        option.initFrom(&by);
        option.text = by.title();
        option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        const QRect contents =
            by.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, &by);
        return by.rect().contains(where) && !contents.contains(where);
    }

    /// Leads to its field, where the toolkit would prefer a chosen option.
    bool TakeShortcut() override {
        auto* field = by.findChild<QLineEdit*>();
        if (field) field->setFocus(Qt::ShortcutFocusReason);
        return field != nullptr;
    }

    QString Text() const override { return by.title(); }
    void SetText(const QString& text) override { by.setTitle(text); }
};

struct ChoiceListFace final : FaceOf<ChoiceList, QComboBox> {
    using FaceOf::FaceOf;

    void KeepRoom() override {
        by.addItem(QString::fromStdString(shown.widest));
        by.setMinimumWidth(by.sizeHint().width());
        by.removeItem(by.count() - 1);
    }
    void Connect(Acts& acts) override {
        QObject::connect(&by, &QComboBox::activated, &by, [this, &acts](int index) {
            shown.selected = index;
            acts.Fire(shown, shown.Chosen);
        });
    }
    KeyUse TakeKey(const QKeyEvent& event) override { return isListKey(event) ? KeyUse::Kept : KeyUse::Open; }

    Roles ColorRoles() const override { return {QPalette::Button, QPalette::ButtonText}; }

    /// The style shades a button from a lighter tint downwards, on which light letters would fade.
    QColor GroundOf(const ColorPair& colors) const override {
        constexpr int shade = 160;  // percent
        const QColor ground = FaceOf::GroundOf(colors);
        const bool isLightOnDark = qGray(ToQColor(colors.foreground).rgb()) > qGray(ground.rgb());
        return isLightOnDark ? ground.darker(shade) : ground;
    }

    void DrawKind() override {
        if (items_ != shown.items) {
            items_ = shown.items;
            by.clear();
            for (const std::string& item : items_) by.addItem(QString::fromStdString(item));
        }
        if (by.currentIndex() != shown.selected) by.setCurrentIndex(shown.selected);
    }

    std::vector<std::string> items_;  ///< As they stand in the widget.
};

struct ProgressBarFace final : FaceOf<ProgressBar, QProgressBar> {
    using FaceOf::FaceOf;

    void DrawKind() override {
        by.setRange(0, shown.maximum);
        by.setValue(shown.value);
    }
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
    KindOf<ProgressBarFace>,
    KindOf<OwnFace<UpDown, UpDownWidget>>,
    KindOf<OwnFace<StatusBar, StatusBarWidget>>,
    KindOf<OwnFace<CellGrid, CellGridWidget>>,
    KindOf<OwnFace<Grid, GridWidget>>,
    KindOf<OwnFace<DayStrip, DayStripWidget>>,
    KindOf<OwnFace<RowTable, RowTableWidget>>,
    KindOf<OwnFace<MoonPicture, MoonPictureWidget>>,
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
