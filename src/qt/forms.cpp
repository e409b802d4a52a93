#include "qt/forms.h"

#include "forms/ui_date_box.h"
#include "forms/ui_events.h"
#include "forms/ui_gregorian.h"
#include "forms/ui_hebrew.h"
#include "forms/ui_julian.h"
#include "forms/ui_lunar.h"
#include "forms/ui_monthly.h"
#include "forms/ui_oriental.h"
#include "forms/ui_persian.h"
#include "forms/ui_progress.h"
#include "forms/ui_quartane.h"
#include "forms/ui_report_finished.h"
#include "forms/ui_time_astro.h"
#include "forms/ui_user.h"
#include "forms/ui_world.h"

namespace horvanta {
namespace {

template <class Ui>
void SetUp(QWidget& widget) {
    Ui().setupUi(&widget);
}

struct DesignerForm {
    std::string_view name;
    void (*setUp)(QWidget& widget);
};

constexpr DesignerForm designerForms[] = {
    {"TimeAstro", SetUp<Ui::TimeAstro>}, {"Gregorian", SetUp<Ui::Gregorian>},
    {"Monthly", SetUp<Ui::Monthly>},     {"Quartane", SetUp<Ui::Quartane>},
    {"User", SetUp<Ui::User>},           {"Persian", SetUp<Ui::Persian>},
    {"Julian", SetUp<Ui::Julian>},       {"World", SetUp<Ui::World>},
    {"Lunar", SetUp<Ui::Lunar>},         {"Events", SetUp<Ui::Events>},
    {"Hebrew", SetUp<Ui::Hebrew>},       {"Chinese", SetUp<Ui::Chinese>},
    {"Progress", SetUp<Ui::Progress>},   {"ReportFinished", SetUp<Ui::ReportFinished>},
    {"DateBox", SetUp<Ui::DateBox>},
};

}  // namespace

std::unique_ptr<QWidget> MakeForm(std::string_view name) {
    auto widget = std::make_unique<QWidget>();
    for (const DesignerForm& form : designerForms) {
        if (form.name == name) form.setUp(*widget);
    }
    return widget;
}

}  // namespace horvanta
