#include "desk.h"

#include "core/day_events.h"
#include "core/moment.h"
#include "core/text.h"
#include "desk_functions.h"

#include <algorithm>
#include <utility>

namespace horvanta {
namespace {

struct NamedKey {
    std::string_view name;
    KeyCode code;
};

constexpr NamedKey namedKeys[] = {
    {"Backspace", KeyBackspace},
    {"Enter", KeyEnter},
    {"Shift", KeyShiftItself},
    {"Pause", KeyPause},
    {"Escape", KeyEscape},
    {"Esc", KeyEscape},
    {"Space", KeySpace},
    {"PageUp", KeyPageUp},
    {"PageDown", KeyPageDown},
    {"End", KeyEnd},
    {"Home", KeyHome},
    {"Left", KeyLeft},
    {"Up", KeyUp},
    {"Right", KeyRight},
    {"Down", KeyDown},
    {"Numeric0", KeyNumeric0},
    {"Numeric2", KeyNumeric2},
    {"Numeric4", KeyNumeric4},
    {"Numeric5", KeyNumeric5},
    {"Numeric6", KeyNumeric6},
    {"Numeric8", KeyNumeric8},
    {"Point", KeyNumericPoint},
    {"Plus", KeyNumericPlus},
    {"Minus", KeyNumericMinus},
};

constexpr std::pair<std::string_view, KeyShift> namedShifts[] = {
    {"shift", ShiftKey},
    {"ctrl", ControlKey},
    {"alt", AltKey},
};

int CodeOf(std::string_view name) {
    for (const NamedKey& key : namedKeys) {
        if (key.name == name) return key.code;
    }
    throw BadLine("no such key: " + std::string(name));
}

int ShiftOf(std::string_view name) {
    for (const auto& [shift, bit] : namedShifts) {
        if (shift == name) return bit;
    }
    throw BadLine("no such modifier: " + std::string(name));
}

/// What ends the editing of a field. Keys may be part of it.
bool isAct(std::string_view verb) {
    constexpr std::string_view acts[] = {"menu", "click", "dblclick", "rightclick", "close", "choose"};
    return std::ranges::find(acts, verb) != std::end(acts);
}

/// Cuts the first word off a line.
std::string_view TakeWord(std::string_view& line) {
    line = Trimmed(line);
    const std::string_view word = line.substr(0, line.find(' '));
    line = Trimmed(line.substr(word.size()));
    return word;
}

/// What a control shows: of one with parts all of them, separated by lines.
std::string ShownText(const Control& control) {
    std::vector<std::string> texts;
    if (const auto* bar = dynamic_cast<const StatusBar*>(&control)) {
        for (const StatusBar::Panel& panel : bar->panels) texts.push_back(panel.text);
    } else if (const auto* grid = dynamic_cast<const CellGrid*>(&control)) {
        for (const CellGrid::Heading& heading : grid->headings) texts.push_back(heading.text);
        for (const CellGrid::Cell& cell : grid->cells) texts.push_back(cell.text);
    } else if (const auto* table = dynamic_cast<const Grid*>(&control)) {
        for (const auto& row : table->rows) texts.insert(texts.end(), row.begin(), row.end());
    } else if (const auto* listed = dynamic_cast<const RowTable*>(&control)) {
        texts = listed->headings;
        for (const RowTable::Row& row : listed->rows) texts.insert(texts.end(), row.cells.begin(), row.cells.end());
    } else if (const auto* moon = dynamic_cast<const MoonPicture*>(&control)) {
        for (const double x : {moon->look.lit, moon->look.turn, moon->look.size}) texts.push_back(GeneralText(x));
        texts.emplace_back(moon->look.up ? "up" : "down");
    } else if (const auto* progress = dynamic_cast<const ProgressBar*>(&control)) {
        return std::to_string(progress->value) + "/" + std::to_string(progress->maximum);
    } else if (const auto* list = dynamic_cast<const ChoiceList*>(&control)) {
        texts = list->items;
        texts.push_back("selected=" + std::to_string(list->selected));
    } else {
        return control.text;
    }
    std::string text = texts.empty() ? "" : texts.front();
    for (std::size_t i = 1; i < texts.size(); ++i) text += "|" + texts[i];
    return text;
}

std::string CheckText(const Control& control) {
    constexpr const char* words[] = {" unchecked", " checked", " undecided"};
    if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return words[option->isChosen()];
    const auto* box = dynamic_cast<const CheckBox*>(&control);
    return box ? words[box->State()] : "";
}

std::string Joined(const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& item : items) text += (text.empty() ? "" : "; ") + item;
    return text.empty() ? "none" : text;
}

}  // namespace

Desk::Desk(const StoredSettings& settings) {
    desktop.settings.values = settings;
    CurrentDesktop = &desktop;
    desktop.duringEvents = [this] { ObeyWaiting(); };
    program.Start();
    desktop.Settle();
}

Desk::~Desk() { CurrentDesktop = nullptr; }

std::string Desk::Obey(std::string_view line) try {
    struct Verb {
        std::string_view name;
        std::string (Desk::*obey)(std::string_view rest);
    };
    constexpr Verb verbs[] = {
        {"call", &Desk::Call},         {"set", &Desk::Set},
        {"get", &Desk::Get},           {"press", &Desk::Press},
        {"menu", &Desk::Menu},         {"click", &Desk::Click},
        {"dblclick", &Desk::DblClick}, {"rightclick", &Desk::RightClick},
        {"focus", &Desk::Focus},       {"close", &Desk::Close},
        {"choose", &Desk::Choose},     {"type", &Desk::Type},
        {"answer", &Desk::Answer},     {"show", &Desk::Show},
        {"events", &Desk::Events},     {"asked", &Desk::Asked},
        {"status", &Desk::Status},     {"edit", &Desk::Edit},
        {"during", &Desk::During},
    };
    std::string_view rest = line;
    const std::string_view name = TakeWord(rest);
    const auto* verb = std::ranges::find(verbs, name, &Verb::name);
    if (verb == std::end(verbs)) throw BadLine("no such line: " + std::string(name));
    const bool isRecord = verb->obey == &Desk::Asked || verb->obey == &Desk::Status;
    if (desktop.ended && !isRecord) throw BadLine("the program has ended");
    if (isAct(verb->name)) CommitEdit();
    const std::string answer = (this->*verb->obey)(rest);
    desktop.Settle();
    return answer;
} catch (const BadLine& bad) {
    return std::string("error: ") + bad.what();
}

std::string Desk::Call(std::string_view rest) {
    const std::string name(TakeWord(rest));
    const DeskFunction* function = FindDeskFunction(name);
    if (!function) throw BadLine("no such function: " + name);
    return function->call(program, WordsOf(rest));
}

/// Sets a variable as a command would, and so ends in an update.
std::string Desk::Set(std::string_view rest) {
    const std::string name(TakeWord(rest));
    const DeskVariable* variable = FindDeskVariable(name);
    if (!variable || !variable->set) throw BadLine("can't be set: " + name);
    const std::vector<std::string> words = WordsOf(rest);
    if (words.size() != 1) throw BadLine("takes one value");
    variable->set(words[0]);
    UpdateStatus();
    return "ok";
}

std::string Desk::Get(std::string_view rest) {
    const DeskVariable* variable = FindDeskVariable(rest);
    if (!variable) throw BadLine("no such variable: " + std::string(rest));
    return variable->get();
}

std::string Desk::Press(std::string_view rest) {
    const int code = CodeOf(TakeWord(rest));
    int shift = 0;
    while (!rest.empty()) {
        const std::string_view word = TakeWord(rest);
        KeyHeld = KeyHeld || word == "held";
        shift |= word == "held" ? 0 : ShiftOf(word);
    }
    const bool pressed = desktop.Press(code, shift);
    KeyHeld = false;
    if (!pressed) throw BadLine("no window has the focus");
    return "ok";
}

std::string Desk::Menu(std::string_view rest) {
    MenuItem* item = rest.empty() ? nullptr : program.frame.menuBar.Find(rest);
    if (!item || !item->Click) throw BadLine("no such menu item: " + std::string(rest));
    if (!item->isEnabled()) throw BadLine("not enabled: " + std::string(rest));
    RequireHeard(program.frame.name);
    item->Click();
    return "ok";
}

Control& Desk::ControlInReach(std::string_view name) const {
    Control& control = ControlNamed(name);
    if (!isInReach(control) || !desktop.isHeard(control)) throw BadLine("not in reach: " + std::string(name));
    return control;
}

/// A button that is clicked gets the focus; labels don't take it.
std::string Desk::Act(std::string_view rest, std::function<void()> Control::*callback) {
    Control& control = ControlInReach(rest);
    if (!(control.*callback)) throw BadLine("nothing happens there");
    if (TakesClicks(control)) desktop.Focus(control);
    (control.*callback)();
    return "ok";
}

std::string Desk::ClickPanel(StatusBar& bar, std::string_view number) {
    const auto panel = ParseNumber(number);
    if (!bar.PanelClick) throw BadLine("nothing happens there");
    if (!panel || *panel < 1 || *panel > static_cast<double>(bar.panels.size())) throw BadLine("no such panel");
    bar.PanelClick(WholeNumber<std::size_t>(*panel) - 1);
    return "ok";
}

std::string Desk::ClickArrow(UpDown& arrows, std::string_view direction) {
    if (!arrows.Step) throw BadLine("nothing happens there");
    if (direction != "up" && direction != "down") throw BadLine("neither up nor down: " + std::string(direction));
    arrows.Step(direction == "up" ? 1 : -1, 0);
    return "ok";
}

std::string Desk::ClickCell(CellGrid& grid, std::string_view number) {
    const auto cell = ParseNumber(number);
    if (!grid.CellClick) throw BadLine("nothing happens there");
    if (!cell || *cell < 0 || *cell >= static_cast<double>(grid.cells.size())) throw BadLine("no such cell");
    desktop.Focus(grid);
    grid.CellClick(WholeNumber<std::size_t>(*cell));
    return "ok";
}

std::string Desk::ClickCell(const Grid& grid, std::string_view place) {
    const auto row = ParseNumber(TakeWord(place));
    const auto column = ParseNumber(place);
    if (!row || !column) throw BadLine("takes a row and a column");
    const auto within = [](double number, const auto& list) {
        return number >= 0 && number < static_cast<double>(list.size());
    };
    if (!within(*row, grid.rows) || !within(*column, grid.rows.front())) throw BadLine("no such cell");
    if (!grid.CellClick) throw BadLine("nothing happens there");
    grid.CellClick(WholeNumber<std::size_t>(*row), WholeNumber<std::size_t>(*column));
    return "ok";
}

/// A click without a row is one beside the rows.
std::string Desk::ClickRow(const RowTable& table, std::string_view number) {
    const auto row = ParseNumber(number);
    if (number.empty()) {
        table.Click();
    } else if (row && *row >= 0 && *row < static_cast<double>(table.rows.size())) {
        table.RowClick(WholeNumber<std::size_t>(*row));
    } else {
        throw BadLine("no such row");
    }
    return "ok";
}

/// Selects the item of a list by its number from 0.
std::string Desk::Choose(std::string_view rest) {
    auto* list = dynamic_cast<ChoiceList*>(&ControlInReach(TakeWord(rest)));
    const auto index = ParseNumber(rest);
    if (!list || !list->Chosen) throw BadLine("nothing can be chosen there");
    if (!index || *index < 0 || *index >= static_cast<double>(list->items.size())) throw BadLine("no such item");
    desktop.Focus(*list);
    list->selected = WholeNumber(*index);
    list->Chosen();
    return "ok";
}

/// The cells of a month are clicked by their numbers from 0, those of a table by row and column from 0, the panels of
/// a bar by their numbers from 1, arrows by their direction, rows by their numbers from 0.
std::string Desk::Click(std::string_view rest) {
    std::string_view number = rest;
    const std::string_view name = TakeWord(number);
    if (auto* bar = dynamic_cast<StatusBar*>(&ControlNamed(name))) {
        ControlInReach(name);
        return ClickPanel(*bar, number);
    }
    if (auto* grid = dynamic_cast<CellGrid*>(&ControlNamed(name))) {
        ControlInReach(name);
        return ClickCell(*grid, number);
    }
    if (auto* grid = dynamic_cast<Grid*>(&ControlNamed(name))) {
        ControlInReach(name);
        return ClickCell(*grid, number);
    }
    if (const auto* table = dynamic_cast<RowTable*>(&ControlNamed(name))) {
        ControlInReach(name);
        return ClickRow(*table, number);
    }
    if (auto* arrows = dynamic_cast<UpDown*>(&ControlNamed(name))) {
        ControlInReach(name);
        return ClickArrow(*arrows, number);
    }
    return Act(rest, &Control::Click);
}
std::string Desk::DblClick(std::string_view rest) { return Act(rest, &Control::DblClick); }

/// On a control that has no menu, or on none, it is the window that is clicked.
std::string Desk::RightClick(std::string_view rest) {
    const Form& form = FormNamed(rest.substr(0, rest.find('.')));
    if (rest != form.name && ControlInReach(rest).RightClick) return Act(rest, &Control::RightClick);
    if (!form.visible || !form.OpenMenu) throw BadLine("not in reach: " + std::string(rest));
    RequireHeard(form.name);
    form.OpenMenu();
    return "ok";
}

std::string Desk::Focus(std::string_view rest) {
    desktop.Focus(ControlInReach(rest));
    return "ok";
}

std::string Desk::Close(std::string_view rest) {
    const bool isFrame = rest == program.frame.name;
    if (!isFrame && !FormNamed(rest).visible) throw BadLine("not in reach: " + std::string(rest));
    const std::function<void()>& close = isFrame ? program.frame.Close : FormNamed(rest).Close;
    if (!close) throw BadLine("can't be closed: " + std::string(rest));
    RequireHeard(rest);
    close();
    return "ok";
}

std::string Desk::Type(std::string_view rest) {
    auto* field = dynamic_cast<TextField*>(&ControlInReach(TakeWord(rest)));
    if (!field || !desktop.Type(*field, rest)) throw BadLine("nothing can be typed there");
    return "ok";
}

std::string Desk::Edit(std::string_view rest) {
    auto* field = dynamic_cast<TextField*>(&ControlInReach(TakeWord(rest)));
    if (!field || !desktop.Edit(*field, rest)) throw BadLine("nothing can be typed there");
    return "ok";
}

std::string Desk::Answer(std::string_view rest) {
    const std::string_view word = TakeWord(rest);
    BoxAnswer answer;
    if (word == "yes") {
        answer.kind = BoxAnswer::yes;
    } else if (word == "no") {
        answer.kind = BoxAnswer::no;
    } else if (const auto number = ParseNumber(rest); word == "color" && number) {
        answer = {BoxAnswer::color, Color::FromNumber(WholeNumber(*number)), ""};
    } else if (word == "text") {
        answer = {BoxAnswer::text, Color(), std::string(rest)};
    } else if (word != "cancel") {
        throw BadLine("no such answer: " + std::string(word));
    }
    desktop.answers.push_back(answer);
    return "ok";
}

/// A number before the line says how many rounds go by before it.
std::string Desk::During(std::string_view rest) {
    std::string_view line = rest;
    const auto rounds = ParseNumber(TakeWord(line));
    waiting_.push_back({rounds ? WholeNumber(*rounds) : 0, std::string(rounds ? line : rest)});
    return "ok";
}

void Desk::ObeyWaiting() {
    if (waiting_.empty() || waiting_.front().rounds-- > 0) return;
    const std::string line = waiting_.front().line;
    waiting_.pop_front();
    const std::string answer = Obey(line);
    desktop.asked.push_back("during " + Quoted(line) + " " + answer);
}

std::string Desk::Show(std::string_view rest) {
    const Form& form = FormNamed(rest);
    std::vector<std::string> items{form.name + " " + Quoted(form.text) + (form.visible ? "" : " hidden")};
    for (const Control* control : form.controls) {
        items.push_back(control->name + " " + Quoted(ShownText(*control)) + " " + Quoted(control->tooltip) +
                        CheckText(*control) + (control->visible ? "" : " hidden") +
                        (control->enabled ? "" : " disabled") + (control == desktop.focused ? " focus" : ""));
    }
    return Joined(items);
}

/// All of them, or those of a calendar.
std::string Desk::Events(std::string_view calendar) {
    std::vector<std::string> items;
    for (const day_events::Event& event : day_events::List()) {
        if (!calendar.empty() && event.calendar != calendar) continue;
        items.push_back(Quoted(event.calendar) + " " + Quoted(event.date) + " " + Quoted(event.text));
    }
    return Joined(items);
}

std::string Desk::Status(std::string_view) { return Quoted(desktop.status); }

std::string Desk::Asked(std::string_view) { return Joined(std::exchange(desktop.asked, {})); }

Form& Desk::FormNamed(std::string_view name) const {
    for (Form* form : desktop.forms) {
        if (form->name == name) return *form;
    }
    throw BadLine("no such window: " + std::string(name));
}

void Desk::RequireHeard(std::string_view name) const {
    const Form* modal = desktop.ModalForm();
    if (modal ? modal->name != name : desktop.busy) throw BadLine("not in reach: " + std::string(name));
}

Control& Desk::ControlNamed(std::string_view name) const {
    const std::size_t point = name.find('.');
    const Form& form = FormNamed(name.substr(0, point));
    Control* control = point == std::string_view::npos ? nullptr : form.Find(name.substr(point + 1));
    if (!control) throw BadLine("no such control: " + std::string(name));
    return *control;
}

}  // namespace horvanta
