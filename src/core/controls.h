#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What windows and menus show, as plain data, and the callbacks that a user's act on them fires.
///
/// Writing a control is silent; it shows when the desktop draws next. Only a user's act fires a callback.
namespace horvanta {

struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    /// From and to the number that settings hold: blue in the high byte of three, red in the low one.
    static constexpr Color FromNumber(std::int32_t number) {
        return {static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(number >> 8),
                static_cast<std::uint8_t>(number >> 16)};
    }
    constexpr std::int32_t Number() const { return blue << 16 | green << 8 | red; }

    bool operator==(const Color&) const = default;
};

/// The colour with each channel moved by `strength`, away from the nearer of its two ends.
Color Shade(Color color, int strength);

/// The colour, or the first on its way to black or to white that has a contrast of 4.5 to its ground (Web Content
/// Accessibility Guidelines 2.1).
Color Legible(Color wish, Color ground);

/// How a text stands out among its like: by a warm or a cool colour. What it stands out for is told in words as well.
enum class Mark { None, Warm, Cool };

/// The colour of a marked text on a ground; `unmarked` for one without a mark.
Color InkOf(Mark mark, Color ground, Color unmarked);

/// Text and background, which are only ever set together.
struct ColorPair {
    Color background;
    Color foreground;

    /// The one of the two that `isBackground` names.
    Color& Part(bool isBackground) { return isBackground ? background : foreground; }
    const Color& Part(bool isBackground) const { return isBackground ? background : foreground; }

    bool operator==(const ColorPair&) const = default;
};

class Form;

/// Anything on a form. It registers with its form when it is constructed and stays where it is.
class Control {
  public:
    /// With any of `Caption`, `Tip`, `Widest` and `Named`.
    template <class... Properties>
    Control(Form& owner, std::string_view controlName, const Properties&... properties)
        : form(owner), name(controlName) {
        (properties.GiveTo(*this), ...);
        JoinForm();
    }
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Wishes that this control have the focus once the form is drawn.
    void TakeFocus();

    Form& form;
    const std::string name;
    std::string text;  ///< What it shows; a caption marks its access key with "&".
    std::string tooltip;
    std::string widest;  ///< The widest text it may come to show, for which room is kept.
    std::string spoken;  ///< What a screen reader calls it, where neither caption nor tooltip tells it from others.
    bool visible = true;
    bool enabled = true;
    bool whileBusy = false;           ///< Hears keys and clicks while a long command lets events run.
    std::optional<ColorPair> colors;  ///< None follows the desktop's palette.
    std::optional<Color> tint;        ///< Of its text on the palette's background, shaded until it can be read there.

    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void()> RightClick;
    bool copies = false;  ///< A click copies what it shows.

    /// Asked before that of the form for a key that the control does not keep to itself; true if it has been used up.
    std::function<bool(int code, int shift)> KeyDown;

  private:
    void JoinForm();
};

// What a control may be constructed with.
struct Caption {
    std::string text;
    void GiveTo(Control& control) const { control.text = text; }
};
struct Tip {
    std::string text;
    void GiveTo(Control& control) const { control.tooltip = text; }
};
struct Widest {
    std::string text;
    void GiveTo(Control& control) const { control.widest = text; }
};
struct Named {
    std::string text;
    void GiveTo(Control& control) const { control.spoken = text; }
};

struct Label final : Control {
    using Control::Control;
};

struct Button final : Control {
    using Control::Control;
};

/// One line of text that the user edits; what is typed stands in `text` at once.
struct TextField final : Control {
    using Control::Control;
    ~TextField() override;

    bool readOnly = false;            ///< It can be read and copied, not written.
    std::function<void()> LostFocus;  ///< The user left the field or pressed Enter in it.
    std::function<void()> Entered;    ///< He pressed Enter; called after `LostFocus`.

    /// Called at each change by the user, where it is there. What stands in such a field counts at once: there is
    /// nothing to take later or to give up.
    std::function<void()> Typed;

    /// The user changed the text into this one, and is still at it.
    void Edit(const std::string& typed);

    /// True from the first change until the user leaves the field, or the program writes another text into it.
    bool isEdited() const { return edit_ && text == edit_->typed; }

    /// The user leaves the field, or presses Enter in it.
    void Leave();
    void Enter();

    /// Puts back the text from before the editing; false if there was none.
    bool Restore();

  private:
    struct Editing {
        std::string before;
        std::string typed;
    };
    std::optional<Editing> edit_;
};

/// Takes what the user typed and has not left yet, as if he left the field now: a command that comes by its key or from
/// a menu acts on what stands there.
void CommitEdit();

/// A key that a field takes for writing and moving the cursor in it, where nothing else uses it.
bool isWritingKey(int code);

/// A pair of arrows that change what another control shows. Its caption, if any, says by how much.
struct UpDown final : Control {
    using Control::Control;
    std::function<void(int direction, int shift)> Step;  ///< 1 upwards, -1 downwards, with the bits of `KeyShift`.
};

/// A box around controls that belong together; it is clicked on its caption or its line.
struct GroupBox final : Control {
    using Control::Control;
};

/// A list of texts of which one is selected, or none (-1).
struct ChoiceList final : Control {
    using Control::Control;
    std::vector<std::string> items;
    int selected = -1;
    std::function<void()> Chosen;  ///< The user selected an item.
};

/// The days of a month in six weeks: the weekdays stand as seven columns under their headings, or as seven rows.
struct CellGrid final : Control {
    using Control::Control;
    struct Cell {
        std::string text;
        bool blank = true;    ///< Not a day of the month.
        std::string tooltip;  ///< What the day is.
        Mark mark = Mark::None;

        bool operator==(const Cell&) const = default;
    };
    struct Heading {
        std::string text;
        std::string tooltip;

        bool operator==(const Heading&) const = default;
    };

    std::array<Cell, 42> cells;
    std::array<Heading, 7> headings;   ///< The full name is the tooltip where the text is a shorter one.
    bool across = false;               ///< The weekdays stand as rows.
    std::size_t active = 0;            ///< The cell of the displayed day.
    std::optional<std::size_t> today;  ///< The cell of the day it is now, if that is in the month.
    std::optional<ColorPair> activeColors;

    std::function<void(std::size_t cell)> CellClick;
};

/// How a check box stands; the numbers are those of the settings.
enum CheckState { Unchecked = 0, Checked = 1, Undecided = 2 };

/// A box that shows an option and holds no state of its own: a click calls for the option's change.
struct CheckBox final : Control {
    using Control::Control;
    void ShowsState(std::function<CheckState()> state) { state_ = std::move(state); }
    void Shows(const bool& option) {
        ShowsState([&option] { return option ? Checked : Unchecked; });
    }

    CheckState State() const { return state_ ? state_() : Unchecked; }

  private:
    std::function<CheckState()> state_;
};

/// One of several choices, which shows whether it is the chosen one: a click calls for the choice.
struct OptionButton final : Control {
    using Control::Control;
    void ShowsWhen(std::function<bool()> chosen) { chosen_ = std::move(chosen); }

    bool isChosen() const { return chosen_ && chosen_(); }

  private:
    std::function<bool()> chosen_;
};

/// A row of panels of one width.
struct StatusBar final : Control {
    using Control::Control;
    struct Panel {
        std::string key;  ///< Says what it shows.
        std::string text;
        std::string tooltip;
    };

    /// What a panel is called.
    const std::string& NameOf(std::size_t index) const {
        return legends ? legends->panels[index].text : panels[index].key;
    }

    std::vector<Panel> panels;
    const StatusBar* legends = nullptr;  ///< The bar that names the panels of this one; a bar of names names itself.
    std::function<void(std::size_t index)> PanelClick;
};

/// A picture of a day's light as a strip from midnight to midnight, with marks for noon and for a time. Its text is a
/// sentence that says the same.
struct DayStrip final : Control {
    using Control::Control;
    enum class Light { Night, AstronomicalTwilight, NauticalTwilight, CivilTwilight, Daylight };
    struct Span {
        double from;  ///< A fraction of the day; it lasts to the next one, or to the end.
        Light light;

        bool operator==(const Span&) const = default;
    };
    struct Day {
        std::vector<Span> spans;
        double noon = 0.5;

        bool operator==(const Day&) const = default;
    };
    Day day;
    double time = 0;                                   ///< A fraction of the day.
    std::function<std::string(double time)> TellTime;  ///< What is to be said of a time that is pointed at.
};

/// Texts in rows and columns; the first row and the first column are headings.
struct Grid final : Control {
    using Control::Control;
    std::vector<std::vector<std::string>> rows;  ///< All of one length.
    std::function<void(std::size_t row, std::size_t column)> CellClick;
};

/// Rows under headings, as many as there are; a row is clicked as a whole. A click beside them is one on the table.
class RowTable final : public Control {
  public:
    using Control::Control;

    struct Row {
        std::vector<std::string> cells;  ///< As many as there are headings.
        std::optional<ColorPair> colors;

        bool operator==(const Row&) const = default;
    };

    std::vector<std::string> headings;
    std::vector<Row> rows;
    std::function<void(std::size_t row)> RowClick;
};

/// A bar that fills while a long command goes on.
struct ProgressBar final : Control {
    using Control::Control;
    std::int32_t value = 0;
    std::int32_t maximum = 1;
};

/// A picture of the Moon as it is seen from a place. Its tooltip says it in words.
class MoonPicture final : public Control {
  public:
    using Control::Control;

    struct Look {
        double lit = 0;   ///< The part of the disc that is lit, from 0 to 1.
        double turn = 0;  ///< The direction of the middle of the lit limb, degrees from the top to the left.
        double size = 1;  ///< The breadth of the disc, where 1 is that at the mean distance.
        bool up = true;   ///< It stands above the horizon.

        bool operator==(const Look&) const = default;
    };

    Look look;
};

/// What tells a control from others, beside what it shows: what is spoken of it, or its tooltip. Empty where that tells
/// what a click does, which is no name.
std::string NameOf(const Control& control);

/// What a screen reader calls a control: its caption where that has words, and its name, with the value behind it. A
/// label that shows nothing is there to hold the focus, and bears the name of its window; a strip of the day speaks its
/// sentence.
std::string AccessibleName(const Control& control);

/// Where a window stands in the frame and how large it is, in twips, 15 to a pixel.
struct Position {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

inline constexpr double TwipsPerPixel = 15;

/// A window of the frame.
class Form {
  public:
    Form(std::string_view formName, std::string_view caption) : name(formName), text(caption) {}
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    /// The control of that name; null if there is none.
    Control* Find(std::string_view controlName) const;

    const std::string name;
    std::string text;  ///< The caption.
    bool visible = false;
    bool modal = false;       ///< While it is shown the user can act in no other window. Set before it is loaded.
    bool positioned = false;  ///< The user chose where it stands; the desktop may fit others into its frame.
    bool resizable = false;   ///< The user may choose how large it is. A size of 0 is up to the desktop.
    Position position;        ///< The desktop reports the size, and where the user moved the window.
    std::vector<Control*> controls;  ///< In the order of their construction.
    Control* focusWish = nullptr;    ///< Gets the focus, and its form is raised, when the desktop draws next.
    bool inFront = false;            ///< It has the focus and nothing covers it, as the desktop reports.

    /// Where the desktop put it, which is elsewhere than `position` if it had to be kept in reach; not if never shown.
    std::optional<Position> standing;

    /// The user asked for the menu of the window: with the right button, or by a key.
    std::function<void()> OpenMenu;

    /// Lets the user choose the background or the text colour of the window; none if it has no colours of its own.
    std::function<void(bool isBackground)> PickColor;

    /// Asked before the focused control; true if the key has been used up. `shift` holds the bits of `KeyShift`.
    std::function<bool(int code, int shift)> KeyDown;

    /// The user closed the window. A form without it can't be closed.
    std::function<void()> Close;
};

/// The bits of a key's modifiers.
enum KeyShift { ShiftKey = 1, ControlKey = 2, AltKey = 4 };

/// The codes of the keys that windows know.
enum KeyCode {
    KeyBackspace = 8,
    KeyEnter = 13,
    KeyShiftItself = 16,
    KeyPause = 19,
    KeyEscape = 27,
    KeySpace = 32,
    KeyPageUp = 33,
    KeyPageDown = 34,
    KeyEnd = 35,
    KeyHome = 36,
    KeyLeft = 37,
    KeyUp = 38,
    KeyRight = 39,
    KeyDown = 40,
    KeyNumeric0 = 96,
    KeyNumeric2 = 98,
    KeyNumeric4 = 100,
    KeyNumeric5 = 101,
    KeyNumeric6 = 102,
    KeyNumeric8 = 104,
    KeyNumericPoint = 110,
    KeyNumericPlus = 107,
    KeyNumericMinus = 109,
    KeyPlus = 187,  // among the letters, with or without Shift
    KeyMinus = 189,
};

/// An item of a menu, or a whole menu under its parent. It is shown if it has a handler or holds an item that is. One
/// with the caption "-" is a line between those that are shown.
class MenuItem {
  public:
    MenuItem() = default;  ///< The menu bar itself.
    MenuItem(MenuItem& above, std::string_view itemName, std::string_view itemCaption = "", std::string_view keys = "");
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;

    /// Ticks the item whenever the answer is yes, the option holds true, or the option holds the value.
    void ShowsWhen(std::function<bool()> ticked) { ticked_ = std::move(ticked); }
    void Shows(const bool& option);
    void Shows(const std::int32_t& option, std::int32_t value);

    bool isShown() const;

    /// Can be chosen: neither it nor a menu above it is grey.
    bool isEnabled() const { return enabled && (!parent || parent->isEnabled()); }
    bool isSeparator() const { return caption == "-"; }
    bool isTickable() const { return static_cast<bool>(ticked_); }
    bool isTicked() const { return ticked_ && ticked_(); }

    /// The item of that name in the tree below; null if there is none.
    MenuItem* Find(std::string_view itemName);

    const std::string name;
    std::string caption;
    const std::string shortcut;  ///< The keys that choose it in any window, as "Ctrl+S"; empty for none.
    bool enabled = true;         ///< One that is not is shown grey.
    MenuItem* const parent = nullptr;
    std::vector<MenuItem*> items;
    std::function<void()> Click;

  private:
    std::function<bool()> ticked_;
};

/// Items of one name, told apart by a number from 1.
template <std::size_t N>
class MenuArray {
  public:
    /// With a caption for each.
    MenuArray(MenuItem& parent, const std::string& name, const std::array<std::string_view, N>& captions)
        : MenuArray(parent, name, captions, std::make_index_sequence<N>()) {}

    /// The item of a number from 1 to N.
    MenuItem& operator[](std::size_t number) { return items_[number - 1]; }

    static constexpr std::size_t size() { return N; }

  private:
    template <std::size_t... I>
    MenuArray(MenuItem& parent, const std::string& name, const std::array<std::string_view, N>& captions,
              std::index_sequence<I...>)
        : items_{MenuItem(parent, name + " " + std::to_string(I + 1), captions[I])...} {}

    std::array<MenuItem, N> items_;
};

}  // namespace horvanta
