#pragma once

#include <algorithm>
#include <array>
#include <string_view>

/// The pages on the web that the Links menu and the reports point to. What has no address yet is pointed to nowhere.
namespace horvanta {

struct WebPage {
    std::string_view caption;  ///< Of its menu item.
    std::string_view address;
};

inline constexpr WebPage HomePage{"Horvanta on the &Web", ""};
inline constexpr WebPage PostponementRulesPage{"Rules of &Postponement", ""};

inline constexpr std::array WebPages{HomePage, PostponementRulesPage};

inline constexpr auto WebPageCaptions = [] {
    std::array<std::string_view, WebPages.size()> captions;
    std::ranges::transform(WebPages, captions.begin(), &WebPage::caption);
    return captions;
}();

}  // namespace horvanta
