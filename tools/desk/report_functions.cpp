#include "desk_rows.h"
#include "reports/report_forms.h"
#include "reports/report_road.h"

namespace horvanta {

std::vector<DeskFunction> ReportFunctions() {
    return {
        Row("CleanFileName", CleanFileName),
        Row("WithoutMarkup", WithoutMarkup),
    };
}

}  // namespace horvanta
