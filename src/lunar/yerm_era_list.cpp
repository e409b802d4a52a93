#include "lunar/yerm_era_list.h"

#include "core/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <span>
#include <string_view>

namespace horvanta {
namespace {

constexpr std::size_t longestFile = 4 << 20;  // bytes; far more than the eras of the displayable range take
constexpr double farthest = 1e8;              // days and lunations; a list of eras lies well within
constexpr double shortestEra = 502;           // days of the yerm that ends every era
constexpr double subcycle = 1447;             // days of three yerms

/// The text of a file; nothing for one that can't be read or is none of text.
std::optional<std::string> TextOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string text(longestFile, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (!file.eof()) return std::nullopt;
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return Trimmed(line);
}

/// The numbers of the lines that remain; none if any of them is something else.
std::vector<double> NumbersOf(std::string_view text) {
    std::vector<double> numbers;
    while (!Trimmed(text).empty()) {
        const auto number = ParseNumber(TakeLine(text));
        if (!number || !(std::fabs(*number) < farthest)) return {};
        numbers.push_back(*number);
    }
    return numbers;
}

/// The length of the eras that a span holds. A span much longer than the era before it is a row of equal ones, at
/// most three subcycles shorter than that era.
double EraWithin(double span, double before) {
    if (before == 0 || span <= before + 3 * subcycle) return span;
    const std::array<double, 4> lengths{before - subcycle, before - 2 * subcycle, before - 3 * subcycle, before};
    const auto* found = std::ranges::find_if(
        lengths, [span](double length) { return length >= shortestEra && std::fmod(span, length) == 0; });
    return found == lengths.end() ? span : *found;
}

/// The lengths of all eras from the starts that a list tells; none if these don't ascend as eras do.
std::vector<double> LengthsOf(std::span<const double> starts) {
    std::vector<double> lengths;
    for (std::size_t i = 1; i < starts.size(); ++i) {
        const double span = starts[i] - starts[i - 1];
        if (!(span >= shortestEra) || span != std::floor(span)) return {};
        const double length = EraWithin(span, lengths.empty() ? 0 : lengths.back());
        lengths.insert(lengths.end(), static_cast<std::size_t>(span / length), length);
    }
    return lengths;
}

}  // namespace

std::optional<YermEraList> ReadYermEraList(const std::string& path) {
    const auto text = TextOf(path);
    if (!text) return std::nullopt;
    std::string_view rest = *text;
    const std::string description(TakeLine(rest));
    const std::vector<double> numbers = NumbersOf(rest);
    constexpr std::size_t headNumbers = 3;
    if (numbers.size() <= headNumbers) return std::nullopt;
    const auto starts = std::span(numbers).subspan(headNumbers);
    YermEraList list{description, numbers[0], {starts[0] - numbers[1]}, numbers[2], LengthsOf(starts)};
    if (list.lengths.empty() || list.firstLunation != std::floor(list.firstLunation)) return std::nullopt;
    return list;
}

}  // namespace horvanta
