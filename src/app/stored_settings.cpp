#include "app/stored_settings.h"

#include "app/horvanta.h"
#include "core/desktop.h"
#include "core/text.h"

namespace horvanta {
namespace {

/// Where it stands is only written while it is neither minimised nor maximised. A size that was lost is that of the
/// screen, which is the largest that the desktop allows.
Settings FrameRows(HorvantaMDI& frame) {
    constexpr double farthest = 1e6;  // twips
    const auto edge = [&](std::string_view key, double Position::*number, double standard = 0) {
        Setting row = NumberRow(frame.name, key, frame.position, number, -farthest, farthest);
        row.standard = ExactText(standard);
        row.give = [&frame, give = row.give] { return frame.state == FrameNormal ? give() : std::nullopt; };
        return row;
    };
    return {{frame.name, "State", std::to_string(FrameMaximized),
             [&frame](const std::string& text) {
                 frame.state = text == std::to_string(FrameNormal) ? FrameNormal : FrameMaximized;
                 return true;
             },
             [&frame] { return std::to_string(frame.state); }},
            edge("Top", &Position::top),
            edge("Left", &Position::left),
            edge("Width", &Position::width, farthest),
            edge("Height", &Position::height, farthest)};
}

Settings ProgramRows() {
    return {
        WrittenRow("Prog", "Name", "Horvanta (Calendar Calculator)"),
        WrittenRow("Prog", "Ver", "11.157(1678)"),
        WrittenRow("Prog", "Rev", "Qua454 2020.08.14 = Qua010 2020.08.12"),
        WrittenRow("Prog", "Pub", "Horvanta"),
    };
}

/// The numbering, which moments and positions of days are read under.
Settings FirstRows(Horvanta& program) {
    Settings rows = ProgramRows();
    Append(rows, program.options.NumberingRows());
    return rows;
}

Settings OtherRows(Horvanta& program) {
    Settings rows;
    for (WindowRow& row : program.windows) {
        if (row.isThere() && !row.form.modal) Append(rows, PositionRows(row));
    }
    Append(rows, program.places.StoredRows());
    for (const WindowRow& row : program.windows) {
        if (row.colors) Append(rows, ColorRows(*row.colors));
        Append(rows, row.settings);
    }
    Append(rows, Options::StoredRows());
    return rows;
}

/// The position of the Events window marks settings of this layout, whatever it is. Others are cleared, but for the
/// mark of a start that has not finished.
void ClearOlderLayout() {
    SettingsStore& settings = CurrentDesktop->Settings();
    if (settings.Read(ProgramSettings, "Events", "Top")) return;
    DeleteAllPrefs();
    settings.Write(ProgramSettings, "Prog", "Launch", "");
}

}  // namespace

Settings StoredRows(Horvanta& program) {
    Settings rows = FirstRows(program);
    Append(rows, OtherRows(program));
    return rows;
}

void LoadFramePrefs(HorvantaMDI& frame) { Load(FrameRows(frame)); }

void LoadPrefs(Horvanta& program) {
    Load(FirstRows(program));
    ClearOlderLayout();
    Load(OtherRows(program));
}

void WritePrefs(Horvanta& program) {
    Save(FrameRows(program.frame));
    Save(StoredRows(program));
}

std::string SavePrefs(Horvanta& program) {
    WritePrefs(program);
    return FlushSettings();
}

void DeleteColorPrefs() { CurrentDesktop->Settings().DeleteSection(ProgramSettings, "Color"); }

}  // namespace horvanta
