#pragma once

#include <optional>

namespace horvanta {

/// Answers what the command line asks, for which no display is needed; the status to end with, or none to go on.
std::optional<int> ObeyArguments(int argc, char* argv[]);

}  // namespace horvanta
