#pragma once

namespace horvanta {

class Horvanta;

/// One pass of `UpdateStatus`: recomputes every open window from the displayed moment.
void RunUpdatePass(Horvanta& program);

}  // namespace horvanta
