#pragma once

#include "app/horvanta.h"
#include "recording_desktop.h"

#include <deque>
#include <functional>
#include <string>
#include <string_view>

namespace horvanta {

/// The whole program without a display, driven by lines of text. Each line gets one line in answer; CONTRIBUTING
/// tells the lines.
class Desk {
  public:
    /// Starts the program on the settings that an earlier run left.
    explicit Desk(const StoredSettings& settings = {});
    ~Desk();

    /// Does what a line says and returns the answer, without a line end.
    std::string Obey(std::string_view line);

    RecordingDesktop desktop;
    Horvanta program;

  private:
    std::string Call(std::string_view rest);
    std::string Set(std::string_view rest);
    std::string Get(std::string_view rest);
    std::string Press(std::string_view rest);
    std::string Menu(std::string_view rest);
    std::string Act(std::string_view rest, std::function<void()> Control::*callback);
    std::string Click(std::string_view rest);
    std::string DblClick(std::string_view rest);
    std::string RightClick(std::string_view rest);
    std::string Focus(std::string_view rest);
    std::string Close(std::string_view rest);
    std::string Type(std::string_view rest);
    std::string Edit(std::string_view rest);
    std::string Answer(std::string_view rest);
    std::string Show(std::string_view rest);
    std::string Events(std::string_view rest);
    std::string Asked(std::string_view rest);
    std::string Status(std::string_view rest);

    std::string During(std::string_view rest);

    std::string Choose(std::string_view rest);
    std::string ClickCell(CellGrid& grid, std::string_view number);
    std::string ClickCell(const Grid& grid, std::string_view place);
    std::string ClickRow(const RowTable& table, std::string_view number);
    std::string ClickPanel(StatusBar& bar, std::string_view number);
    std::string ClickArrow(UpDown& arrows, std::string_view direction);

    Control& ControlNamed(std::string_view name) const;
    Control& ControlInReach(std::string_view name) const;
    Form& FormNamed(std::string_view name) const;

    /// Throws if a window of that name can't be acted on, because another one keeps the user from it.
    void RequireHeard(std::string_view name) const;

    /// Obeys the first of the lines that wait, once its time has come.
    void ObeyWaiting();

    struct Waiting {
        int rounds;  ///< How often events are to run before.
        std::string line;
    };
    std::deque<Waiting> waiting_;
};

}  // namespace horvanta
