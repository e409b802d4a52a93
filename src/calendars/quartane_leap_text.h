#pragma once

#include "core/numerics.h"

#include <string>
#include <string_view>

/// What is told of the leap rule in force.
namespace horvanta::quartane {

/// How the rule decides, as a sentence, with the mark-up of web pages if asked.
std::string LeapRuleMethod(bool forWebPage);

/// The rule with its leap years, their intervals and its mean year.
std::string LeapRuleExplanation();

/// The mean year in words, "365+71/293 days", or what it hangs on; where it changes slowly, the one of a moment.
std::string MeanYearText(Moment x);

/// What it has beyond whole days as a decimal number, or its words where it has no length.
std::string MeanYearFraction(Moment x);

/// "mean year = 365+71/293 days = 365d 5h 48m 57s (52/293 leap cycle)"
std::string MeanYearSummary(Moment x);

/// The years between the leap years of a cycle from its second one on, "17 11 17": 17 stands for 6 + 5 + 6, 11 for
/// 5 + 6. Empty without a cycle.
std::string QuaLeapIntervals();

/// Those intervals in larger groups, "45+79+45", mirrored around the middle: 45 stands for 17 + 11 + 17, 79 for twice
/// 17 around 11, and a pair that stands alone is "(28)". Intervals that don't mirror come back as they were.
std::string QuaGroupIntervals(std::string_view intervals);

/// Groups that follow one another and are the same, as one behind their number: "(28)+(28)+79" is "2*(28) + 79".
std::string ReduceIntervals(std::string_view groups, bool forWebPage);

}  // namespace horvanta::quartane
