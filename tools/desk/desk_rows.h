#pragma once

#include "core/locale.h"
#include "core/numerics.h"
#include "core/text.h"
#include "desk_functions.h"
#include "recording_desktop.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

/// The means by which functions and variables of the engine become rows of the desk: words are read as arguments, and
/// results are told as answers. A type is read by a `Read` and told by an `AnswerOf` in the type's namespace.
namespace horvanta {

// From words to arguments.

template <class T>
struct Read;

template <>
struct Read<double> {
    static double From(const std::string& word) {
        if (word == "never") return NeverMoment;
        const auto number = ParseNumber(word);
        if (!number) throw BadLine("not a number: " + word);
        return *number;
    }
};

template <std::integral Integer>
struct Read<Integer> {
    static Integer From(const std::string& word) {
        const double number = Read<double>::From(word);
        const auto whole = WholeNumber<Integer>(number);
        if (static_cast<double>(whole) != number) throw BadLine("not a whole number that fits: " + word);
        return whole;
    }
};

template <>
struct Read<bool> {
    static bool From(const std::string& word) {
        if (word != "true" && word != "false") throw BadLine("neither true nor false: " + word);
        return word == "true";
    }
};

template <>
struct Read<std::string> {
    static std::string From(const std::string& word) { return word; }
};

template <>
struct Read<std::string_view> : Read<std::string> {};

template <class T>
struct Read<std::optional<T>> {
    static std::optional<T> From(const std::string& word) {
        return word == "none" ? std::nullopt : std::optional(Read<T>::From(word));
    }
};

/// A preset by its short name, or the current place.
template <>
struct Read<LocaleRecord> {
    static LocaleRecord From(const std::string& word);
};

// From results to answers.

inline std::string AnswerOf(double x) { return NumberAnswer(x); }
inline std::string AnswerOf(std::integral auto x) { return std::to_string(x); }
inline std::string AnswerOf(bool x) { return x ? "true" : "false"; }
inline std::string AnswerOf(std::string_view text) { return Quoted(text); }

template <class T>
inline std::string AnswerOf(const std::optional<T>& x) {
    return x ? AnswerOf(*x) : "none";
}

/// A record as name=value fields: their names, parted by blanks, and the values in the same order.
template <class... Values>
std::string RecordAnswer(std::string_view names, const Values&... values) {
    std::string text;
    const auto add = [&](const std::string& value) {
        const std::string_view name = names.substr(0, names.find(' '));
        names.remove_prefix(std::min(names.size(), name.size() + 1));
        text += (text.empty() ? "" : " ") + std::string(name) + "=" + value;
    };
    (add(AnswerOf(values)), ...);
    return text;
}

inline std::string AnswerOf(const LocaleRecord& r) {
    return RecordAnswer(
        "Name Location Latitude KmPerDegLat LatRad Longitude KmPerDegLong LongRad North South East West Elevation Zone "
        "Diaspora NoDST UseLMT",
        r.Name, r.Location, r.Latitude, r.KmPerDegLat, r.LatRad, r.Longitude, r.KmPerDegLong, r.LongRad, r.North,
        r.South, r.East, r.West, r.Elevation, r.Zone, r.Diaspora, r.NoDST, r.UseLMT);
}

std::string ListAnswer(const auto& items) {
    std::string text;
    for (const std::string& item : items) text += (text.empty() ? "" : "; ") + Quoted(item);
    return text;
}

inline std::string AnswerOf(const std::vector<std::string>& list) { return ListAnswer(list); }

// Rows.

/// Calls a function with the words read as its arguments.
template <class... Arguments, class Function>
std::string CallWith(std::span<const std::string> words, const Function& function) {
    if (words.size() != sizeof...(Arguments)) {
        throw BadLine("takes " + std::to_string(sizeof...(Arguments)) + " arguments");
    }
    const auto call = [&]<std::size_t... i>(std::index_sequence<i...>) {
        return function(Read<std::remove_cvref_t<Arguments>>::From(words[i])...);
    };
    constexpr auto indices = std::index_sequence_for<Arguments...>();
    if constexpr (std::is_void_v<decltype(call(indices))>) {
        call(indices);
        return "ok";
    } else {
        return AnswerOf(call(indices));
    }
}

template <class Result, class... Arguments>
DeskFunction Row(std::string_view name, Result (*function)(Arguments...)) {
    return {std::string(name), [function](Horvanta&, std::span<const std::string> words) {
                return CallWith<Arguments...>(words, function);
            }};
}

/// A function whose last argument is a place: it takes the current one.
template <class Result, class... Arguments>
DeskFunction PlaceRow(std::string_view name, Result (*function)(Arguments...)) {
    const auto answer = [function]<std::size_t... i>(std::span<const std::string> words, std::index_sequence<i...>) {
        using All = std::tuple<Arguments...>;
        return CallWith<std::tuple_element_t<i, All>...>(
            words, [&](std::tuple_element_t<i, All>... others) { return function(others..., Locale); });
    };
    return {std::string(name), [answer](Horvanta&, std::span<const std::string> words) {
                return answer(words, std::make_index_sequence<sizeof...(Arguments) - 1>());
            }};
}

template <class T>
DeskVariable Variable(std::string_view name, T& variable) {
    return {std::string(name), [&variable] { return AnswerOf(variable); },
            [&variable](const std::string& word) { variable = Read<T>::From(word); }};
}

/// A number that chooses one of several.
inline DeskVariable Choice(std::string_view name, std::int32_t& variable, std::int32_t first, std::int32_t last) {
    return {std::string(name), [&variable] { return AnswerOf(variable); },
            [=, &variable](const std::string& word) {
                const auto value = Read<std::int32_t>::From(word);
                if (value < first || value > last) throw BadLine("no such choice: " + word);
                variable = value;
            }};
}

/// A variable that only the engine writes.
template <class T>
DeskVariable Constant(std::string_view name, const T& variable) {
    return {std::string(name), [&variable] { return AnswerOf(variable); }, nullptr};
}

}  // namespace horvanta
