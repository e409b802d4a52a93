#pragma once

#include <array>
#include <cstddef>
#include <span>

/// The evaluator of all trigonometric series. A series is a table of terms: a coefficient times the sine or cosine of
/// an angle, where the angle is a sum of multiples of a few arguments, and the coefficient one of multiples of a few
/// factors. The sines of all terms are computed at once, several side by side, and the terms are added in the order of
/// the table: a sum has the same bits on every machine.
namespace horvanta::series {

inline constexpr std::size_t MostArguments = 5;
inline constexpr std::size_t MostFactors = 3;
inline constexpr std::size_t MostTerms = 64;

/// Arguments in degrees, and factors of the coefficients; those that a series does not have are 0.
using Arguments = std::array<double, MostArguments>;
using Factors = std::array<double, MostFactors>;

/// A row of a series: the multiples of the arguments whose sum is its angle, and those of the factors whose sum is its
/// coefficient.
struct Term {
    Arguments angle;
    Factors coefficient;
};

/// A series by columns, one behind the other. The first `count` of the `rows` are terms; the others are 0.
struct Columns {
    std::span<const double> numbers;
    std::size_t rows;
    std::size_t count;
};

template <std::size_t Count>
struct Table {
    static constexpr std::size_t sideBySide = 8;
    static constexpr std::size_t rows = (Count + sideBySide - 1) / sideBySide * sideBySide;
    static_assert(rows <= MostTerms);

    std::array<double, (MostArguments + MostFactors) * rows> numbers{};

    constexpr operator Columns() const { return {numbers, rows, Count}; }
};

/// Lays a table out by columns; `termOf` makes a `Term` of a row.
template <class Row, std::size_t Count, class TermOf>
constexpr Table<Count> MakeTable(const Row (&table)[Count], const TermOf& termOf) {
    Table<Count> columns;
    for (std::size_t i = 0; i < Count; ++i) {
        const Term term = termOf(table[i]);
        std::size_t at = i;
        for (const double x : term.angle) columns.numbers[at] = x, at += columns.rows;
        for (const double x : term.coefficient) columns.numbers[at] = x, at += columns.rows;
    }
    return columns;
}

/// `start` and the terms of a series, added one after the other. The sines have an error of about the last bit for
/// angles to 10^15 degrees.
double SumOfSines(const Columns& series, const Arguments& arguments, const Factors& factors, double start = 0);
double SumOfCosines(const Columns& series, const Arguments& arguments, const Factors& factors, double start = 0);

}  // namespace horvanta::series
