#include "reports/report_forms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace horvanta {
namespace {

struct OddText {
    std::string_view text;
    std::string_view page;
    std::string_view plain;  ///< In the field of a table.
    bool isMarkedUp = false;
};

constexpr OddText oddTexts[] = {
    {"\"to\" 12°, 5–6 ≈ 7", "&quot;to&quot; 12&deg;, 5&ndash;6 &asymp; 7", "\"to\" 12°, 5–6 ≈ 7"},
    {"<b>a</b> & &amp;", "&lt;b&gt;a&lt;/b&gt; &amp; &amp;amp;", "<b>a</b> & &amp;"},
    {"a\tb\r\nc", "a b  c", "a b  c"},
    {"ירושלים", "&#1497;&#1512;&#1493;&#1513;&#1500;&#1497;&#1501;", "ירושלים"},
    {"é\x01\x7F\xC2\x85\xFF\xED\xA0\x80", "&#233;&#65533;", "é\x01\x7F\xC2\x85\xFF\xED\xA0\x80"},
    {"", "&nbsp;", ""},
    {"to <i>Yom</i> 5<br>&ndash; 1 &lt; 2 &amp;lt; \"x\"", "to <i>Yom</i> 5<br>&ndash; 1 &lt; 2 &amp;lt; \"x\"",
     "to Yom 5 – 1 < 2 &lt; \"x\"", true},
};

std::string Replaced(std::string text, char what, std::string_view with) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size())) {
        text.replace(at, 1, with);
    }
    return text;
}

/// A text in each kind of column.
Report OddReport(const OddText& odd) {
    const ColumnKind kind = odd.isMarkedUp ? ColumnKind::Prose : ColumnKind::Text;
    const std::string text(odd.text);
    return {.description = "odd",
            .fileName = "odd",
            .title = odd.isMarkedUp ? "" : text,
            .heading = "odd",
            .notes = {{"li", "one"}, {"li", "two"}, {"p", "three"}},
            .columns = {{ColumnKind::Group, "Group"},
                        {kind, odd.isMarkedUp ? "plain" : odd.text, odd.isMarkedUp ? "" : odd.text},
                        {ColumnKind::Mark, "Mark", "", "Mark in a table"},
                        {ColumnKind::Number, "Number"}},
            .isWide = true,
            .length = 3,
            .row = [text](std::int32_t index) {
                return Cells(std::string(index < 2 ? "<i>A</i>" : "<i>B</i>"), text, std::string(index == 1 ? "x" : ""),
                             std::to_string(index));
            }};
}

/// With a folder in HORVANTA_REPORTS the files are left there, for readers that were not written here.
void Leave(const std::string& name, const std::string& text) {
    if (const char* folder = std::getenv("HORVANTA_REPORTS")) std::ofstream(std::string(folder) + "/" + name) << text;
}

TEST(ReportForms, KeepOddTextsInTheirCells) {
    int number = 0;
    for (const OddText& odd : oddTexts) {
        const Report report = OddReport(odd);
        std::vector<std::string> written;
        for (const ReportForm& form : ReportForms) {
            written.push_back(WholeReport(report, form));
            Leave("odd" + std::to_string(number) + "." + std::string(form.extension), written.back());
        }
        ++number;
        const std::string text(odd.page);
        const std::string plain(odd.plain);
        const std::string cell = odd.isMarkedUp ? "<td align=left>" : "<td NOWRAP>";
        EXPECT_NE(written[0].find("<h2><i>A</i></h2>"), std::string::npos);
        EXPECT_NE(written[0].find("<tr>" + cell + text + "</td><td align=center NOWRAP>&#10004;</td>"),
                  std::string::npos)
            << written[0];
        const std::string quoted = "\"" + Replaced(plain, '"', "\"\"") + "\"";
        EXPECT_NE(written[1].find("\nA\t" + plain + "\tX\t1\nB\t" + plain + "\t\t2\n"), std::string::npos)
            << written[1];
        EXPECT_NE(written[2].find("\n\"A\"," + quoted + ",\"X\",1\n\"B\"," + quoted + ",\"\",2\n"), std::string::npos)
            << written[2];
        for (std::size_t at = 0; (at = written[0].find('\n', at)) != std::string::npos; ++at) {
            ASSERT_EQ(written[0][at - 1], '\r') << at;
        }
        EXPECT_TRUE(
            std::ranges::all_of(written[0], [](char c) { return c == '\r' || c == '\n' || (c >= ' ' && c < 127); }));
    }
}

TEST(ReportForms, AreToldByTheEnding) {
    constexpr std::pair<std::string_view, std::string_view> rows[] = {
        {"/a.b/c.csv", "csv"}, {"x.TAB", "tab"}, {"x.htm", "htm"}, {"x.html", "htm"},
        {"/a.csv/x", "htm"},   {"x.", "htm"},    {"", "htm"},      {"csv", "htm"},
    };
    for (const auto& [path, extension] : rows) EXPECT_EQ(FormOfFile(path).extension, extension) << path;
}

}  // namespace
}  // namespace horvanta
