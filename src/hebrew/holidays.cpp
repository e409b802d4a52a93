#include "hebrew/holidays.h"

#include "calendars/gregorian.h"
#include "core/text.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <string_view>

namespace horvanta {
namespace {

enum Month : std::int8_t { Any, Nisan, Iyar, Sivan, Tammuz, Av, Elul, Tishrei, Cheshvan, Kislev, Tevet, Shevat };

/// The Adar before Nisan, whatever its number, and that of a leap year before it.
constexpr std::int8_t adarRishon = 12;
constexpr std::int8_t adar = 13;

enum Weekday : std::int32_t { Sunday = 1, Monday, Thursday = 5, Friday, Shabbat };

/// The weekdays on which a day is kept, a bit for each from Sunday = 1.
using Weekdays = std::uint32_t;
constexpr Weekdays On(Weekday day) { return 1U << day; }
constexpr Weekdays always = 0xFF;
constexpr Weekdays NotOn(Weekday day) { return always & ~On(day); }

enum class Where { Anywhere, Israel, Diaspora, Jerusalem };

/// A day and what is needed to say what it is.
struct Asked {
    const HebrewDateRecord& date;
    const HebrewReckoning& reckoning;
    const LocaleRecord& place;
    std::int32_t months = reckoning.MonthsInYear(date.Year);
    std::int32_t monthKey = date.Month == months ? adar : date.Month;

    std::int32_t nextMonth() const { return date.Month == months ? 1 : date.Month + 1; }
    FixedDay DayOf(std::int32_t month, std::int32_t day) const { return reckoning.ToFixed(date.Year, month, day); }
    std::string NextMonthName() const { return std::string(reckoning.MonthName(date.Year, nextMonth())); }
};

/// A row of the special days: one day of a month, or several in sequence.
struct SpecialDay {
    std::int8_t month;
    std::int8_t from;
    std::int8_t to;
    Weekdays weekdays;
    Where where;
    std::int32_t firstYear;
    std::string HebrewDay::*field;
    std::string_view text;                       ///< "#" is the day of the month.
    std::string (*say)(const Asked&) = nullptr;  ///< Says the text, or none, where the row alone can't tell.
};

// First years.
constexpr std::int32_t creation = 1;
constexpr std::int32_t torah = 2449;         // the exodus from Egypt
constexpr std::int32_t tuBAv = 2489;         // the end of the forty years
constexpr std::int32_t exile = 3176;         // the fall of the first temple
constexpr std::int32_t purim = 3406;         // the story of Esther
constexpr std::int32_t zachor = 3407;        // the year after
constexpr std::int32_t chanukah = 3623;      // the rededication of the second temple
constexpr std::int32_t announcement = 4119;  // the fixed calendar

std::string SayYomHaZikaron(const Asked& day) {
    return day.date.Fixed == YomHaZikaron(day.date.Year, day.reckoning) ? "Yom HaZikaron (Israel Memorial Day)" : "";
}

std::string SayYomHaAtzmaut(const Asked& day) {
    if (day.date.Fixed < FoundingOfIsrael || day.date.Fixed != YomHaZikaron(day.date.Year, day.reckoning) + 1)
        return "";
    const std::string anniversary = OrdinalDiff(5708, day.date.Year);
    return "Yom HaAtzmaut (" + WrapIfNotEmpty(Trimmed(anniversary), "", " ", "") + "Israel Independence Day)";
}

std::string SayCreation(const Asked& day) {
    return day.date.Year == 1 ? "Traditional Rabbinical date of Creation" : "";
}

/// Penitential prayers begin on the Sunday before the new year, but at least three days before it.
std::string SaySelichot(const Asked& day) {
    const FixedDay newYear = HebrewNewYear(day.date.Year + 1);
    const FixedDay sunday = KDayOnOrBefore(0, newYear - 3);
    if (day.date.Fixed < sunday) return "";
    return day.date.Fixed == sunday ? "Start of Selichot" : "Interval = Selichot";
}

/// 1 to 8; anything else on other days.
double DayOfChanukah(const Asked& day) { return day.date.Fixed - day.DayOf(Kislev, 25) + 1; }

std::string SayChanukah(const Asked& day) {
    const double k = DayOfChanukah(day);
    return k >= 1 && k <= 8 ? "Chanukah " + GeneralText(k) : "";
}

using D = HebrewDay;
using enum Where;

// clang-format off
constexpr SpecialDay specialDays[] = {
    {Nisan, 10, 10, always, Israel, torah, &D::Notes, "Aliyah Day (Israel)"},
    {Nisan, 13, 13, always, Anywhere, torah, &D::Notes, "Search for Chametz"},
    {Nisan, 14, 14, NotOn(Shabbat), Anywhere, torah, &D::Fast, "Ta'anit Bechorot (Fast of Firstborn)"},
    {Nisan, 12, 12, On(Thursday), Anywhere, torah, &D::Fast, "Ta'anit Bechorot (Fast of Firstborn)"},
    {Nisan, 15, 15, always, Israel, torah, &D::YomTov, "Passover"},
    {Nisan, 15, 15, always, Diaspora, torah, &D::YomTov, "Passover 1"},
    {Nisan, 16, 16, always, Diaspora, torah, &D::YomTov, "Passover 2"},
    {Nisan, 16, 16, always, Israel, torah, &D::CholHamoed, "Chol Hamoed Pesach"},
    {Nisan, 17, 20, always, Anywhere, torah, &D::CholHamoed, "Chol Hamoed Pesach"},
    {Nisan, 21, 21, always, Anywhere, torah, &D::YomTov, "Passover 7"},
    {Nisan, 22, 22, always, Diaspora, torah, &D::YomTov, "Passover 8"},
    {Nisan, 22, 22, always, Israel, torah, &D::Notes, "Isru Chag Pesach"},
    {Nisan, 23, 23, always, Diaspora, torah, &D::Notes, "Isru Chag Pesach"},
    {Nisan, 27, 27, NotOn(Sunday), Anywhere, 5711, &D::Holiday, "Yom HaShoah (Holocaust Memorial Day)"},
    {Nisan, 28, 28, On(Monday), Anywhere, 5711, &D::Holiday, "Yom HaShoah (Holocaust Memorial Day)"},
    {Iyar, 1, 6, always, Anywhere, 5723, &D::Holiday, "", SayYomHaZikaron},
    {Iyar, 1, 7, always, Anywhere, 5708, &D::Holiday, "", SayYomHaAtzmaut},
    {Iyar, 10, 10, always, Anywhere, 5765, &D::Notes, "Birthday of Theodor Herzl"},
    {Iyar, 14, 14, always, Anywhere, torah, &D::Notes, "Pesach Sheini (2nd Passover)"},
    {Iyar, 18, 18, always, Anywhere, torah, &D::Holiday, "Lag B'Omer (33rd day of the Omer)"},
    {Iyar, 28, 28, always, Anywhere, 5758, &D::Holiday, "Yom Yerushalayim (Jerusalem Reunification Day)"},
    {Sivan, 6, 6, always, Israel, torah, &D::YomTov, "Shavuot"},
    {Sivan, 6, 6, always, Diaspora, torah, &D::YomTov, "Shavuot 1"},
    {Sivan, 7, 7, always, Diaspora, torah, &D::YomTov, "Shavuot 2"},
    {Sivan, 7, 7, always, Israel, torah, &D::Notes, "Isru Chag Shavuot"},
    {Sivan, 8, 8, always, Diaspora, torah, &D::Notes, "Isru Chag Shavuot"},
    {Tammuz, 17, 17, NotOn(Shabbat), Anywhere, exile, &D::Fast, "Tzom Tammuz"},
    {Tammuz, 18, 18, On(Sunday), Anywhere, exile, &D::Fast, "Tzom Tammuz"},
    {Tammuz, 18, 18, NotOn(Sunday), Anywhere, exile, &D::Notes, "Interval = Bein HaMetzarim (Between the Straits)"},
    {Tammuz, 19, 30, always, Anywhere, exile, &D::Notes, "Interval = Bein HaMetzarim (Between the Straits)"},
    {Tammuz, 29, 29, always, Anywhere, 5765, &D::Notes, "Ze'ev Jabotinsky Memorial Day"},
    {Av, 1, 8, always, Anywhere, exile, &D::Notes, "Interval = Bein HaMetzarim (Between the Straits)"},
    {Av, 9, 9, On(Shabbat), Anywhere, exile, &D::Notes, "Interval = Bein HaMetzarim (Between the Straits)"},
    {Av, 9, 9, NotOn(Shabbat), Anywhere, exile, &D::Fast, "Tisha B'Av"},
    {Av, 10, 10, On(Sunday), Anywhere, exile, &D::Fast, "Tisha B'Av"},
    {Av, 15, 15, always, Anywhere, tuBAv, &D::Holiday, "Tu B'Av"},
    {Elul, 25, 25, always, Anywhere, creation, &D::Notes, "", SayCreation},
    {Elul, 1, 30, always, Anywhere, torah, &D::Notes, "", SaySelichot},
    {Tishrei, 1, 2, always, Anywhere, torah, &D::YomTov, "Rosh Hashanah # (Hebrew New Year)"},
    {Tishrei, 3, 3, NotOn(Shabbat), Anywhere, torah, &D::Fast, "Tzom Gedaliah"},
    {Tishrei, 4, 4, On(Sunday), Anywhere, torah, &D::Fast, "Tzom Gedaliah"},
    {Tishrei, 10, 10, always, Anywhere, torah, &D::YomTov, "Yom Kippur (Atonement)"},
    {Tishrei, 10, 10, always, Anywhere, torah, &D::Fast, "Yom Kippur (Atonement)"},
    {Tishrei, 15, 15, always, Israel, torah, &D::YomTov, "Sukkot"},
    {Tishrei, 15, 15, always, Diaspora, torah, &D::YomTov, "Sukkot 1"},
    {Tishrei, 16, 16, always, Diaspora, torah, &D::YomTov, "Sukkot 2"},
    {Tishrei, 16, 16, always, Israel, torah, &D::CholHamoed, "Chol Hamoed Sukkot"},
    {Tishrei, 17, 20, always, Anywhere, torah, &D::CholHamoed, "Chol Hamoed Sukkot"},
    {Tishrei, 21, 21, always, Anywhere, torah, &D::Holiday, "Hoshana Rabbah"},
    {Tishrei, 22, 22, always, Anywhere, torah, &D::YomTov, "Shemini Atzeret"},
    {Tishrei, 23, 23, always, Diaspora, torah, &D::YomTov, "Simchat Torah"},
    {Tishrei, 1, 9, always, Anywhere, torah, &D::Notes, "Day # of the 10 days of Repentance"},
    {Tishrei, 10, 10, always, Anywhere, torah, &D::Notes, "Last Day of the 10 days of Repentance"},
    {Tishrei, 23, 23, always, Israel, torah, &D::Notes, "Isru Chag Sukkot"},
    {Tishrei, 24, 24, always, Diaspora, torah, &D::Notes, "Isru Chag Sukkot"},
    {Cheshvan, 7, 7, always, Israel, creation, &D::Notes, "Begin Sh'elah in Israel (request for rain)"},
    {Cheshvan, 7, 7, always, Israel, creation, &D::Notes, "Aliyah Day (observed in Israeli schools)"},
    {Cheshvan, 12, 12, always, Anywhere, 5757, &D::Notes, "Yitzhak Rabin Memorial Day"},
    {Cheshvan, 29, 29, always, Anywhere, 5769, &D::Notes, "Sigd Festival (Beta Israel)"},
    {Kislev, 25, 30, always, Anywhere, chanukah, &D::Holiday, "", SayChanukah},
    {Tevet, 1, 3, always, Anywhere, chanukah, &D::Holiday, "", SayChanukah},
    {Tevet, 10, 10, always, Anywhere, exile, &D::Fast, "Tzom Tevet"},
    {Shevat, 15, 15, always, Anywhere, torah, &D::Holiday, "Tu B'Shevat (New Year for Trees)"},
    {adarRishon, 14, 14, always, Anywhere, purim, &D::Notes, "Purim Katan"},
    {adar, 11, 11, On(Thursday), Anywhere, purim, &D::Fast, "Ta'anit Esther"},
    {adar, 13, 13, NotOn(Shabbat), Anywhere, purim, &D::Fast, "Ta'anit Esther"},
    {adar, 14, 14, always, Anywhere, purim, &D::Holiday, "Purim"},
    {adar, 15, 15, NotOn(Shabbat), Jerusalem, purim, &D::Holiday, "Shushan Purim (in Jerusalem)"},
    {adar, 16, 16, On(Sunday), Jerusalem, purim, &D::Holiday, "Shushan Purim (in Jerusalem)"},
};
// clang-format on

std::string SayShekalim(const Asked& day) { return day.date.Month == day.months - 1 ? "Shekalim" : ""; }

/// The Sabbath on which the song at the sea is read, the 16th after the portions begin anew.
std::string SayShirah(const Asked& day) {
    const FixedDay anew = HebrewNewYear(day.date.Year) + (day.place.Diaspora ? 23 : 22);
    return CountKDaysInRange(6, anew, day.date.Fixed) == 16 ? "Shirah" : "";
}

std::string SayBeforeNisan(const Asked& day) {
    const double days = day.DayOf(Nisan, 1) - day.date.Fixed;
    if (days < 0 || days > 13) return "";
    return days <= 6 ? "HaChodesh" : "Parah";
}

/// A later row that holds replaces an earlier one.
// clang-format off
constexpr SpecialDay sabbaths[] = {
    {Any, 29, 29, On(Shabbat), Anywhere, torah, &D::ShabbatName, "Machar Chodesh"},
    {Any, 25, 30, On(Shabbat), Anywhere, purim, &D::ShabbatName, "", SayShekalim},
    {adar, 1, 1, On(Shabbat), Anywhere, purim, &D::ShabbatName, "Shekalim"},
    {Nisan, 8, 14, On(Shabbat), Anywhere, torah, &D::ShabbatName, "HaGadol"},
    {Av, 4, 9, On(Shabbat), Anywhere, exile, &D::ShabbatName, "Chazon"},
    {Av, 10, 16, On(Shabbat), Anywhere, exile, &D::ShabbatName, "Nachamu"},
    {Tishrei, 3, 9, On(Shabbat), Anywhere, torah, &D::ShabbatName, "T'shuvah"},
    {Shevat, 1, 30, On(Shabbat), Anywhere, torah, &D::ShabbatName, "", SayShirah},
    {adar, 8, 13, On(Shabbat), Anywhere, zachor, &D::ShabbatName, "Zachor"},
    {adar, 1, 30, On(Shabbat), Anywhere, torah, &D::ShabbatName, "", SayBeforeNisan},
    {Nisan, 1, 1, On(Shabbat), Anywhere, torah, &D::ShabbatName, "", SayBeforeNisan},
};
// clang-format on

bool isJerusalem(std::string_view name) {
    constexpr std::string_view jerusalem = "jerusalem";
    const auto same = [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; };
    return !std::ranges::search(name, jerusalem, same).empty();
}

bool isKeptAt(Where where, const LocaleRecord& place) {
    switch (where) {
        case Israel: return !place.Diaspora;
        case Diaspora: return place.Diaspora;
        case Jerusalem: return isJerusalem(place.Name);
        default: return true;
    }
}

bool Holds(const SpecialDay& row, const Asked& day) {
    return (row.month == day.monthKey || row.month == Any) && day.date.Day >= row.from && day.date.Day <= row.to &&
           (row.weekdays >> day.date.WeekDay & 1U) != 0 && day.date.Year >= row.firstYear &&
           isKeptAt(row.where, day.place);
}

/// Calls `use` with the field and the text of each row that holds on a day.
void ForEachHolding(const auto& table, const Asked& day, const auto& use) {
    for (const SpecialDay& row : table) {
        if (!Holds(row, day)) continue;
        const std::string text =
            row.say != nullptr ? row.say(day) : ReplaceAll(row.text, "#", std::to_string(day.date.Day));
        if (!text.empty()) use(row.field, text);
    }
}

void Post(HebrewDay& result, std::string HebrewDay::*field, const std::string& text) {
    std::string& joined = result.*field;
    joined += (joined.empty() ? "" : "/") + text;
    if (result.texts.empty() || result.texts.back() != text) result.texts.push_back(text);  // Yom Kippur is also a fast
}

std::string MoladTime(Moment moladMoment) { return FormatTime(moladMoment, hebrew::options.MoladTimeFormat); }

/// The molad of the month that was counted before the world was made, and that of the year of Adam's.
void PostFirstMoladot(HebrewDay& result) {
    constexpr Epoch moladOfAdam{-1373073.66666667};
    if (result.date.Fixed == HebrewEpoch) {
        Post(result, &D::MoladText, "Molad Tohu (chaos) at " + MoladTime(TraditionalMolad(0)));
    } else if (result.date.Fixed == Floor(moladOfAdam)) {
        Post(result, &D::MoladText, "Molad Adam (Creation of Man) at " + MoladTime(TraditionalMolad(12)));
    }
}

std::string MoladAnnouncement(const Asked& day) {
    const Moment announced = MyMoladMoment(false, ElapsedMonths(false, day.date.Year, day.date.Month) + 1, 0);
    return "Molad of " + day.NextMonthName() + " = " + std::string(WeekdayLabel(announced)) + " at " +
           MoladTime(announced);
}

/// "Rosh Chodesh Iyar will be next Yom Sheini - Yom Shlishi": a month of 30 days gives its last to the celebration.
std::string NewMonthAnnouncement(const Asked& day) {
    const bool twoDays = day.reckoning.LastDayOfMonth(day.date.Year, day.date.Month) == 30;
    const bool newYear = day.nextMonth() == Tishrei;
    const FixedDay first = day.date.Fixed + 30 - day.date.Day;
    const std::string month = day.nextMonth() == Av ? "Menachem Av" : day.NextMonthName();
    std::string text = (newYear ? "Rosh Hashanah" : "Rosh Chodesh " + month) + " will be next ";
    text += WeekdayLabel(first);
    if (newYear || twoDays) text += " - " + std::string(WeekdayLabel(first + 1));
    return text;
}

/// The Sabbath before a new month announces it, but that of day 30.
void AnnounceMonth(HebrewDay& result, const Asked& day) {
    result.BirkatHachodesh = "no";
    if (day.date.Day < 23 || day.date.Day == 30) return;
    if (day.date.Year >= announcement && !day.reckoning.astronomical) {
        Post(result, &D::MoladText, MoladAnnouncement(day));
    }
    result.BirkatHachodesh = NewMonthAnnouncement(day);
}

void PostRoshChodesh(HebrewDay& result, const Asked& day) {
    const std::string shabbat = result.isShabbat() ? "Shabbat " : "";
    if (day.date.Day == 30) {
        result.RoshChodesh = -1;
        Post(result, &D::Notes, shabbat + "Rosh Chodesh 1 for " + day.NextMonthName());
    } else if (day.date.Day == 1 && day.date.Month != Tishrei) {
        const bool second = day.reckoning.DateOf(day.date.Fixed - 1).Day == 30;
        result.RoshChodesh = second ? 2 : 1;
        Post(result, &D::Notes, shabbat + "Rosh Chodesh" + (second ? " 2" : ""));
    }
}

void PostOmerAndShabbat(HebrewDay& result, const Asked& day) {
    if (day.date.Month <= Sivan) {
        const std::string omer = Omer(day.date.Fixed, day.reckoning);
        if (!omer.empty()) Post(result, &D::OmerText, omer);
    }
    if (result.isShabbat() && !result.CholHamoed.empty()) result.ShabbatName = "Chol Hamoed";
    if (!result.ShabbatName.empty()) result.texts.push_back("Shabbat " + result.ShabbatName);
}

}  // namespace

HebrewDay HebrewHolidays(const HebrewDateRecord& date, const HebrewReckoning& reckoning, const LocaleRecord& place) {
    HebrewDay result{.date = date};
    if (date.Fixed < HebrewEpoch || date.Month < 1 || date.Month > 13) return result;
    const Asked day{.date = date, .reckoning = reckoning, .place = place};

    if (date.Year < torah) PostFirstMoladot(result);
    if (result.isShabbat()) {
        AnnounceMonth(result, day);
        ForEachHolding(sabbaths, day, [&](auto field, const std::string& name) { result.*field = name; });
    }
    PostRoshChodesh(result, day);
    ForEachHolding(specialDays, day, [&](auto field, const std::string& text) { Post(result, field, text); });
    result.Chanukah = result.Holiday.starts_with("Chanukah");
    if (date.Year >= torah) PostOmerAndShabbat(result, day);
    return result;
}

HebrewDay HebrewDayOf(Moment moment, const LocaleRecord& place) {
    return HebrewHolidays(FixedToHebrewDate(moment), TraditionalReckoning, place);
}

FixedDay Passover(std::int32_t gregorianYear, const HebrewReckoning& reckoning) {
    constexpr std::int32_t yearOfHebrewEpoch = -3760;
    return reckoning.ToFixed(gregorianYear - yearOfHebrewEpoch, Nisan, 15);
}

Moment JumpYomTov(Moment from, int direction, std::int32_t month, std::int32_t day) {
    const std::int32_t year = FixedToHebrewYear(from);
    const FixedDay ofThisYear = HebrewToFixed(year, month, day);
    return direction * from >= direction * ofThisYear ? HebrewToFixed(year + direction, month, day) : ofThisYear;
}

std::string Omer(Moment moment, const HebrewReckoning& reckoning) {
    const auto k = WholeNumber(Floor(moment) - Passover(FixedToGregorianYear(moment), reckoning));
    if (k < 1 || k > 49) return "";
    const auto counted = [](int n, const char* unit) { return std::to_string(n) + " " + unit + (n == 1 ? "" : "s"); };
    std::string text = OrdinalString(k) + " day of the Omer";
    if (k >= 7) {
        text += " (" + counted(k / 7, "week") + (k % 7 == 0 ? "" : " and " + counted(k % 7, "day")) + ")";
    }
    return text;
}

FixedDay YomHaZikaron(std::int32_t year, const HebrewReckoning& reckoning) {
    if (year <= 5708) return FoundingOfIsrael - 1;
    const FixedDay day = reckoning.ToFixed(year, Iyar, 4);
    switch (DayOfWeek(day)) {
        case 0: return year >= 5764 ? day + 1 : day;
        case 4: return day - 1;
        case 5: return day - 2;
        default: return day;
    }
}

namespace {

FixedDay NotOnShabbat(FixedDay day) { return DayOfWeek(day) == 6 ? day + 1 : day; }

}  // namespace

FixedDay TzomTammuz(std::int32_t year) { return NotOnShabbat(HebrewToFixed(year, Tammuz, 17)); }
FixedDay TishaBAv(std::int32_t year) { return NotOnShabbat(HebrewToFixed(year, Av, 9)); }

std::vector<FestivalDays> Festivals(bool diaspora) {
    std::vector<FestivalDays> festivals;
    for (const SpecialDay& row : specialDays) {
        const bool elsewhere = row.where == (diaspora ? Israel : Diaspora);
        if (elsewhere || (row.field != &D::YomTov && row.field != &D::CholHamoed)) continue;
        festivals.push_back({row.month, row.from, row.to});
    }
    return festivals;
}

}  // namespace horvanta
