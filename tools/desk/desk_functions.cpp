#include "desk_functions.h"

#include "core/numerics.h"
#include "core/text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace horvanta {
namespace {

/// The rows of all folders.
template <class Rows, std::size_t N>
Rows Joined(Rows (*const (&folders)[N])()) {
    Rows all;
    for (const auto folder : folders) std::ranges::move(folder(), std::back_inserter(all));
    return all;
}

template <class Rows>
auto* FindByName(const Rows& rows, std::string_view name) {
    const auto found = std::ranges::find(rows, name, [](const auto& row) -> std::string_view { return row.name; });
    return found == rows.end() ? nullptr : &*found;
}

}  // namespace

std::vector<std::string> WordsOf(std::string_view line) {
    std::vector<std::string> words;
    bool inWord = false;
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (!quoted && (c == ' ' || c == '\t')) {
            inWord = false;
            continue;
        }
        if (!std::exchange(inWord, true)) words.emplace_back();
        const bool escape = quoted && c == '\\' && i + 1 < line.size();
        if (escape) {
            const char next = line[++i];
            words.back() += next == 'n' ? '\n' : next;
        } else if (c == '"') {
            quoted = !quoted;
        } else {
            words.back() += c;
        }
    }
    if (quoted) throw BadLine("a quote is not closed");
    return words;
}

std::string NumberAnswer(double x) { return x == NeverMoment ? "never" : ExactText(x); }

const DeskFunction* FindDeskFunction(std::string_view name) {
    static const auto functions =
        Joined({CoreFunctions, AstroFunctions, LocaleFunctions, CalendarFunctions, ContractFunctions, HebrewFunctions,
                LunarFunctions, ClockFunctions, ReportFunctions, ViewFunctions});
    return FindByName(functions, name);
}

const DeskVariable* FindDeskVariable(std::string_view name) {
    static const auto variables = Joined({CoreVariables, AstroVariables, LocaleVariables, CalendarVariables,
                                          HebrewVariables, LunarVariables, ClockVariables});
    return FindByName(variables, name);
}

}  // namespace horvanta
