#include "core/shell.h"

#include "core/desktop.h"
#include "core/text.h"

#include <iterator>
#include <utility>

namespace horvanta {
namespace {

/// A value as a person knows it: what it is, if anything tells, and what is shown of it.
struct NamedValue {
    std::string name;
    std::string text;
    const Control* control;

    std::string Line() const { return (name.empty() ? "" : name + ": ") + text; }
};

void AddValue(std::vector<NamedValue>& values, const std::string& name, const std::string& text, const Control& from) {
    const std::string shown(Trimmed(RemoveAmpersands(text)));
    if (!shown.empty() && shown != name) values.push_back({name, shown, &from});
}

void AddPanels(std::vector<NamedValue>& values, const StatusBar& bar) {
    if (bar.legends == &bar) return;
    for (std::size_t i = 0; i < bar.panels.size(); ++i) AddValue(values, bar.NameOf(i), bar.panels[i].text, bar);
}

void AddCells(std::vector<NamedValue>& values, const Grid& grid) {
    for (std::size_t row = 1; row < grid.rows.size(); ++row) {
        for (std::size_t column = 1; column < grid.rows[row].size(); ++column) {
            const std::string name = grid.rows[row][0] + ", " + grid.rows[0][column];
            AddValue(values, name, grid.rows[row][column], grid);
        }
    }
}

/// The last cell of a row is its value, and the others name it.
void AddRows(std::vector<NamedValue>& values, const RowTable& table) {
    for (const auto& [cells, colors] : table.rows) {
        std::string name = cells.front();
        for (std::size_t i = 1; i + 1 < cells.size(); ++i) name += ", " + cells[i];
        AddValue(values, name, cells.back(), table);
    }
}

/// The values of a control: those of its parts, if it has any. A label that neither copies nor has a name is a caption.
void AddValues(std::vector<NamedValue>& values, const Control& control) {
    if (const auto* bar = dynamic_cast<const StatusBar*>(&control)) {
        AddPanels(values, *bar);
    } else if (const auto* grid = dynamic_cast<const Grid*>(&control)) {
        AddCells(values, *grid);
    } else if (const auto* table = dynamic_cast<const RowTable*>(&control)) {
        AddRows(values, *table);
    } else if (dynamic_cast<const TextField*>(&control)) {
        AddValue(values, NameOf(control), control.text, control);
    } else if (dynamic_cast<const Label*>(&control) && (control.copies || !NameOf(control).empty())) {
        AddValue(values, NameOf(control), control.text, control);
    }
}

std::vector<NamedValue> ValuesOf(const Form& form) {
    std::vector<NamedValue> values;
    for (const Control* control : form.controls) {
        if (control->visible) AddValues(values, *control);
    }
    return values;
}

std::string AllValues(const Form& form) {
    std::string text = form.text;
    for (const NamedValue& value : ValuesOf(form)) text += "\n" + value.Line();
    return text;
}

/// The caption of an item that copies a value. It has no access key.
std::string CopyCaption(const NamedValue& value) {
    constexpr std::size_t widest = 50;  // characters
    const NamedValue shown{Elided(value.name, widest), Elided(value.text, widest), nullptr};
    return ReplaceAll(ReplaceAll("Copy " + shown.Line(), "\n", " "), "&", "&&");
}

}  // namespace

MenuItem& ItemOf(EventMenu& menu, MenuEvent event) {
    const auto* found = std::ranges::find(EventItems, event, &EventItem::event);
    return menu[static_cast<std::size_t>(found - EventItems) + 1];
}

void HorvantaMDI::SetClipboardText(const std::string& clip) {
    CurrentDesktop->SetClipboard(clip);
    ShowClipboardText(ReplaceAll(clip, "\n", "|"));
}

void HorvantaMDI::CopyToClipboard(const Control& control) { SetClipboardText(control.tooltip + ": " + control.text); }

void HorvantaMDI::CopyOnClick(Label& label) {
    CopyOnClick(label, [this, &label] { SetClipboardText(label.text); });
}

void HorvantaMDI::CopyOnClick(Control& control, const std::function<void()>& click) {
    control.Click = click;
    control.copies = true;
    OfferCopy(control);
}

void HorvantaMDI::OfferCopy(Control& control) {
    control.RightClick = [this, &control] { Offer({{"&Copy", control.Click}}); };
}

void HorvantaMDI::OpenMenu(const Form& form, WindowColors* colors) {
    std::vector<Command> commands;
    for (const NamedValue& value : ValuesOf(form)) {
        const auto copyLine = [this, line = value.Line()] { SetClipboardText(line); };
        commands.push_back({CopyCaption(value), value.control->copies ? value.control->Click : copyLine});
    }
    if (!commands.empty()) commands.push_back({"-", nullptr});
    commands.push_back({"Copy &All", [this, &form] { SetClipboardText(AllValues(form)); }});
    if (colors) std::ranges::move(ColorCommands(*colors), std::back_inserter(commands));
    Offer(commands);
}

std::vector<HorvantaMDI::Command> HorvantaMDI::ColorCommands(WindowColors& colors) {
    return {{"&Text Colour...", [this, &colors] { PickForegroundColor(colors); }},
            {"&Background Colour...", [this, &colors] { PickBackgroundColor(colors); }}};
}

void HorvantaMDI::Offer(const std::vector<Command>& commands) {
    std::vector<std::string> captions;
    std::ranges::transform(commands, std::back_inserter(captions), &Command::caption);
    const auto chosen = CurrentDesktop->ChooseFromMenu(captions);
    if (chosen && *chosen < commands.size() && commands[*chosen].act) commands[*chosen].act();
}

void HorvantaMDI::AskCopyToClipboard(const std::string& message, const std::string& title) {
    if (CurrentDesktop->ShowInformation(message, title)) {
        SetClipboardText(message + ":" + title);
    }
    TakeFocus();
}

void HorvantaMDI::OfferColors(WindowColors& colors) {
    colors.mainDate.DblClick = [this, &colors] { PickBackgroundColor(colors); };
    colors.mainDate.RightClick = [this, &colors] {
        const Form& form = colors.mainDate.form;
        std::vector<Command> commands{{"&Copy", colors.mainDate.Click},
                                      {"Copy &All", [this, &form] { SetClipboardText(AllValues(form)); }}};
        std::ranges::move(ColorCommands(colors), std::back_inserter(commands));
        Offer(commands);
    };
    colors.mainDate.form.PickColor = [this, &colors](bool isBackground) { PickColor(colors, isBackground); };
}

void HorvantaMDI::PickColor(WindowColors& colors, bool isBackground) {
    const Color present = colors.Shown(isBackground);
    const std::string title =
        (isBackground ? "Background Colour of " : "Text Colour of ") + RemoveAmpersands(colors.mainDate.form.text);
    const auto chosen = CurrentDesktop->ChooseColor(present, title);
    if (!chosen) return;
    undoColor_ = {present, &colors, isBackground};
    UndoLastColorChange.enabled = true;
    colors.SetColor(*chosen, isBackground);
}

void HorvantaMDI::UndoLastColorChange_Click() {
    auto& [color, colors, isBackground] = undoColor_;
    const Color present = colors->Shown(isBackground);
    colors->SetColor(color, isBackground);
    color = present;
}

void HorvantaMDI::PickColorOfActive(bool isBackground) {
    if (activeForm && activeForm->PickColor) {
        activeForm->PickColor(isBackground);
    } else {
        Refuse(activeForm ? activeForm->text + " has no colours of its own" : "no window is active");
    }
}

void HorvantaMDI::ColorPicking(bool enable) { PickBackColor.enabled = PickForeColor.enabled = enable; }

}  // namespace horvanta
