#pragma once

#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace horvanta {

class Horvanta;

/// A line that can't be obeyed, and why.
struct BadLine : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A line cut at its blanks. A piece in double quotes may hold blanks, and \n, \" and \\.
std::vector<std::string> WordsOf(std::string_view line);

/// A number as the desk answers it: 17 significant digits, or "never".
std::string NumberAnswer(double x);

/// A function of the engine that can be called by name.
struct DeskFunction {
    std::string name;
    std::function<std::string(Horvanta& program, std::span<const std::string> arguments)> call;
};

/// The function of that name; null if there is none.
const DeskFunction* FindDeskFunction(std::string_view name);

/// Names and types of the plain variables that can be read and set.
struct DeskVariable {
    std::string name;
    std::function<std::string()> get;
    std::function<void(const std::string& word)> set;
};

const DeskVariable* FindDeskVariable(std::string_view name);

// The rows of each folder, and those of the calendars by their contracts.
std::vector<DeskFunction> CoreFunctions();
std::vector<DeskFunction> AstroFunctions();
std::vector<DeskFunction> LocaleFunctions();
std::vector<DeskFunction> CalendarFunctions();
std::vector<DeskFunction> ContractFunctions();
std::vector<DeskFunction> HebrewFunctions();
std::vector<DeskFunction> LunarFunctions();
std::vector<DeskFunction> ClockFunctions();
std::vector<DeskFunction> ReportFunctions();
std::vector<DeskFunction> ViewFunctions();

std::vector<DeskVariable> CoreVariables();
std::vector<DeskVariable> AstroVariables();
std::vector<DeskVariable> LocaleVariables();
std::vector<DeskVariable> CalendarVariables();
std::vector<DeskVariable> HebrewVariables();
std::vector<DeskVariable> LunarVariables();
std::vector<DeskVariable> ClockVariables();

}  // namespace horvanta
