#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Reports as data: a title, columns, and a walk that yields one row after another. The forms in which they are written
/// stand in `report_forms`. All texts are UTF-8.
///
/// A text that is said to be marked up has the tags and entities of web pages, which tables leave out; its own "<" and
/// "&" are entities.
namespace horvanta {

/// What a column holds, and so how its cells stand on a page and in a table.
enum class ColumnKind {
    Group,   ///< The first column, marked up: a page has a table of its own, headed by it, for all rows of one value.
    Number,  ///< To the right, in a line; no text to a spreadsheet.
    Text,    ///< To the left, in a line.
    Prose,   ///< The same, marked up and broken into lines.
    Mark,    ///< A tick unless its text is empty.
};

struct ReportColumn {
    ColumnKind kind;
    std::string_view head;
    std::string_view title = "";      ///< Says what the column is, where the pointer rests on its head.
    std::string_view plainHead = "";  ///< Its head in a table, if that is another one.
};

struct ReportCell {
    std::string text;
    std::string below = "";            ///< Marked up; stands below the text on a page, and is left out of tables.
    std::string_view background = "";  ///< The name of a light colour on which the text stands in black, if any.
};

/// As many cells as there are columns.
using ReportRow = std::vector<ReportCell>;

/// The row of some texts, which it takes over.
template <class... Texts>
ReportRow Cells(Texts&&... texts) {
    ReportRow row;
    row.reserve(sizeof...(texts));
    (row.push_back({std::forward<Texts>(texts)}), ...);
    return row;
}

/// A heading, a paragraph or an item of a list, above the tables of a page: its tag, "h2", "p" or "li", and its text,
/// marked up.
struct ReportNote {
    std::string_view tag;
    std::string text;
};

struct Report {
    std::string description;  ///< What the dialogs call it.
    std::string fileName;     ///< To begin with, without an ending; `CleanFileName` makes it fit.
    std::string title;
    std::string heading;  ///< Marked up.
    std::vector<ReportNote> notes;
    std::vector<ReportColumn> columns;
    bool isWide = false;                               ///< Its pages are best printed in landscape.
    std::int32_t length;                               ///< How many rows there are.
    std::function<ReportRow(std::int32_t index)> row;  ///< Each of them, from 0.
};

}  // namespace horvanta
