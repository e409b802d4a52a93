#pragma once

namespace horvanta {

/// Gives every option its default, as a first start has them: of every owner that has any. The numbering and Delta T,
/// which dates were found under, go back with their serials.
void ResetAllOptions();

}  // namespace horvanta
