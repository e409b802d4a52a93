#pragma once

#include <array>
#include <cstddef>
#include <string_view>

/// The names of the Oriental calendars in their own languages and in English, in the order of their numbers from 1;
/// weekdays from Sunday. The national ones are spelt with the marks that a plain Latin font has.
namespace horvanta::oriental {

struct Names {
    std::string_view language;
    std::array<std::string_view, 10> stems;
    std::array<std::string_view, 12> branches;
    std::array<std::string_view, 12> minorTerms;
    std::array<std::string_view, 12> majorTerms;
    std::array<std::string_view, 12> months;
    std::array<std::string_view, 7> weekdays;
    std::array<std::string_view, 7> shortWeekdays;
    std::string_view leap;  ///< Said before the name of a leap month.
};

// clang-format off
inline constexpr Names NationalNames[] = {
    {.language = "Chinese",
     .stems = {{"jia", "yi", "bîng", "ding", "wù", "jî", "geng", "xin", "rén", "gui"}},
     .branches = {{"zi", "chou", "yin", "mao", "chén", "si", "wu", "wèi", "shen", "you", "xu", "hài"}},
     .minorTerms = {{"Lìchun", "Jingzhé", "Qingmíng", "Lìxià", "Mángzhòng", "Xiaoshu", "Lìqiu", "Báilù", "Hánlù", "Lìdong", "Dàxue", "Xiaohán"}},
     .majorTerms = {{"Yushui", "Chunfen", "Guyu", "Xiaoman", "Xiàzhì", "Dàshu", "Chushu", "Qiufen", "Shuangjiàng", "Xiaoxue", "Dongzhì", "Dàhán"}},
     .months = {{"zhengyuè", "èryuè", "sanyuè", "sìyuè", "wuyuè", "liùyuè", "qiyuè", "bayuè", "jiuyuè", "shíyuè", "shíyiyuè", "shí'èryuè"}},
     .weekdays = {{"xingqi rì", "xingqi yi", "xingqi èr", "xingqi san", "xingqi sì", "xingqi wu", "xingqi liù"}},
     .shortWeekdays = {{"rì", "yi", "èr", "san", "sì", "wu", "liù"}},
     .leap = "rùnyuè"},
    {.language = "Japanese",
     .stems = {{"ko/kinoe", "otsu/kinoto", "hei/hinoe", "tei/hinoto", "bo/tsuchinoe", "ki/tsuchinoto", "ko/kanoe", "shin/kanoto", "jin/mizunoe", "ki/mizunoto"}},
     .branches = {{"shi/ne", "chu/ushi", "in/tora", "bo/u", "shin/tatsu", "shi/mi", "go/uma", "mi or bi/hitsuji", "shin/saru", "yu/tori", "jutsu/inu", "gai/i"}},
     .minorTerms = {{"Risshun", "Keichitsu", "Seimei", "Rikka", "Boshu", "Shosho", "Risshu", "Hakuro", "Kanro", "Ritto", "Taisetsu", "Shokan"}},
     .majorTerms = {{"Usui", "Shunbun", "Kokuu", "Shoman", "Geshi", "Taisho", "Shosho", "Shubun", "Soko", "Shosetsu", "Toji", "Daikan"}},
     .months = {{"shogatsu", "nigatsu", "sangatsu", "shigatsu", "gogatsu", "rokugatsu", "shichigatsu", "hachigatsu", "kugatsu", "jugatsu", "juichigatsu", "junigatsu"}},
     .weekdays = {{"nichiyobi", "getsuyobi", "kayobi", "suiyobi", "mokuyobi", "kin'yobi", "doyobi"}},
     .shortWeekdays = {{"nichi", "getsu", "ka", "sui", "moku", "kin'", "do"}},
     .leap = "+"},
    {.language = "Korean",
     .stems = {{"Kap", "El", "Byung", "Jung", "Mu", "Ki", "Kyung", "Shin", "Im", "Gye"}},
     .branches = {{"Ja", "Chuk", "In", "Myo", "Jin", "Sa", "Oh", "Mi", "Shin", "Yoo", "Sool", "Hae"}},
     .minorTerms = {{"ipchun", "gyeongchip", "cheongmyeong", "ipha", "mangjong", "soseo", "ipchu", "baekro", "hallo", "ipdong", "daeseol", "sohan"}},
     .majorTerms = {{"usu", "chunbun", "gogu", "soman", "haji", "daeseo", "cheoseo", "chubun", "sanggang", "soseol", "dongji", "daehan"}},
     .months = {{"Il wol", "Ee wol", "Sam wol", "Sa wol", "Oh wol", "Yuke wol", "Chil wol", "Pal wol", "Koo wol", "Shi wol", "Ship il wol", "Sip ee wol"}},
     .weekdays = {{"Il yo il", "Wol yo il", "Hwa yo il", "Soo yo il", "Mok yo il", "Keum yo il", "Toe yo il"}},
     .shortWeekdays = {{"Il", "Wol", "Hwa", "Soo", "Mok", "Keum", "Toe"}},
     .leap = "Leap"},
    {.language = "Vietnamese",
     .stems = {{"Giáp", "Át", "Bính", "Dinh", "Mâu", "Ky", "Canh", "Tân", "Nhâm", "Quý"}},
     .branches = {{"Tý", "Suu", "Dân", "Mão", "Thìn", "Tÿ", "Ngo", "Mùi", "Thân", "Dâu", "Tuát", "Hoi"}},
     .minorTerms = {{"Lâp xuân", "Kinh trâp", "Thanh minh", "Lâp ha", "Mang chung", "Tiêu thu", "Lâp thu", "Bach lô", "Hàn lô", "Lâp dông", "Dai tuyêt", "Tiêu hàn"}},
     .majorTerms = {{"Vu thuy", "Xuân phân", "Côc vu", "Tiêu man", "Ha chi", "Dai thur", "Xu thu", "Thu phân", "Surong giáng", "Tiêu tuyêt", "Dông chí", "Dai hàn"}},
     .months = {{"Giêng", "Hai", "Ba", "Tu", "Näm", "Sáu", "Bày", "Tám", "Chín", "Muòi", "Môt", "Chap"}},
     .weekdays = {{"chù nhât", "thú hai", "thú ba", "thú tu", "thú näm", "thú sáu", "thú bày"}},
     .shortWeekdays = {{"nhât", "hai", "ba", "tu", "näm", "sáu", "bày"}},
     .leap = "nhuân"},
};

/// The stems are the five elements, twice each, and the branches the animals.
inline constexpr Names EnglishNames = {.language = "English",
    .stems = {{"Tree", "Tree", "Fire", "Fire", "Earth", "Earth", "Gold", "Gold", "Water", "Water"}},
    .branches = {{"Rat", "Ox", "Tiger", "Rabbit", "Dragon", "Snake", "Horse", "Goat", "Monkey", "Chicken", "Dog", "Pig"}},
    .minorTerms = {{"Begin spring", "Insects wake", "Pure brightness", "Begin summer", "Grain in ear", "Slight heat", "Begin autumn", "White dew", "Cold dew", "Begin winter", "Great snow", "Slight cold"}},
    .majorTerms = {{"Rain water", "Spring equinox", "Grain rain", "Grain full", "Summer solstice", "Great heat", "Limit of heat", "Autumn equinox", "Descent of frost", "Slight snow", "Winter solstice", "Great cold"}},
    .months = {{"1st", "2nd", "3rd", "4th", "5th", "6th", "7th", "8th", "9th", "10th", "11th", "12th"}},
    .weekdays = {{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}},
    .shortWeekdays = {{"Lord", "2nd", "3rd", "4th", "5th", "6th", "7th"}},
    .leap = "Leap"};
// clang-format on

/// The Vietnamese have other animals in two places of the twelve.
constexpr Names WithVietnameseAnimals(Names names) {
    names.branches[1] = "Water Buffalo";
    names.branches[3] = "Cat";
    return names;
}
inline constexpr Names EnglishVietnameseNames = WithVietnameseAnimals(EnglishNames);

}  // namespace horvanta::oriental
