#pragma once

#include "calendars/quartane_options.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The rules by which the Quartane calendar gives a year its leap week. A rule is either arithmetic, so many leap years
/// spread over a cycle of so many years, or ties each new year to a moment of another calendar or of the Sun.
namespace horvanta::quartane {

/// What follows from the key of a rule. The numbers of the cycle are 0 for a rule that has none.
struct LeapRule {
    bool IsCycleRule = false;        ///< The cycle itself tells which years are leap.
    std::int64_t LeapNumerator = 0;  ///< Leap years of a cycle.
    std::int64_t CycleLength = 0;    ///< Years of a cycle.
    std::int64_t CycleOffset = 0;    ///< Year y is leap if (y * LeapNumerator + CycleOffset) mod CycleLength is less.
    std::int64_t CycleDays = 0;      ///< Days of a cycle.
    std::int64_t DayExcess = 0;      ///< Days of a cycle beyond 365 a year.
    std::int64_t ReducedNumerator = 0;  ///< Over ReducedDenominator: what the mean year has beyond 365 days.
    std::int64_t ReducedDenominator = 0;
    double ReducedRatio = 0;          ///< The quotient of the two.
    double MeanYear = 0;              ///< Days.
    double MeanLunation = 0;          ///< Days of the mean month of a Moon that keeps step with the mean year.
    std::int32_t ModularInverse = 0;  ///< Of the leap years modulo the cycle; 0 if they have a common divisor.
};

/// The rule in force. A key that is no rule's counts as that of the first.
const LeapRule& Rule();

/// The rule is one of those about the ISO new year, or that of the Revised Julian calendar.
bool isISORule();

/// How the weekday on which years begin stands to that of the ISO new year: "that starts", "after" or "before".
std::string_view BesideISOWeekday();

/// The offset of the cycle if years began on a weekday. Only rules with the ISO new year have one that depends on it,
/// and it tells nothing but where their leap years stand; their new years don't go by it.
std::int32_t SetKoffset(std::int32_t weekday);

/// Chooses the middle of even cycles: a leap year and a common one, or the other way round.
void SetEvenCycleMode(bool middleLeapFirst);

/// How the leap years mirror around the middle of the cycle: 1 if they do in a cycle of an odd number of years, -1 if
/// they do in an even one but for the two years of its middle, 0 if they don't.
std::int32_t CheckIfQuaCycle();

/// The entries of the list of rules, "52/293 = 52 symmetrically ...", as it is offered now. Empty ones separate groups.
const std::vector<std::string>& LeapChoices();

/// The first entry that begins with a key; -1 if none does.
std::int32_t FindQuaLeapRule(std::string_view key);

/// Brings the first entry that begins with a key into force, or the first of all.
void SetQuaLeapChoice(std::string_view key);

/// Brings an entry into force by its place in the list; a separator leaves the rule as it is.
void ChooseLeapRule(std::int32_t index);

}  // namespace horvanta::quartane
