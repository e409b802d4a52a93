#pragma once

#include "reports/report.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>

/// The forms of report files. Each is a writer that takes the head of a report, its rows in their order and its foot;
/// it keeps none of them.
namespace horvanta {

class ReportWriter {
  public:
    /// Of a report that outlives it.
    explicit ReportWriter(const Report& report) : report_(report) {}
    virtual ~ReportWriter() = default;
    ReportWriter(const ReportWriter&) = delete;
    ReportWriter& operator=(const ReportWriter&) = delete;

    // Each adds to a text.
    virtual void Head(std::string& text) = 0;
    virtual void Row(const ReportRow& row, std::string& text) = 0;
    virtual void Foot(std::string& text) = 0;

  protected:
    const Report& report_;
};

struct ReportForm {
    std::string_view extension;
    std::string_view kind;  ///< What the file dialog calls it,
    std::string_view text;  ///< and what the closing one does.
    std::string_view hint;  ///< What can be done with the file.
    std::unique_ptr<ReportWriter> (*MakeWriter)(const Report& report);
};

/// A page of HTML 4.01 in ISO-8859-1 with CR LF, and two tables in UTF-8, a row a line: fields separated by tabs, or by
/// commas with all text in double quotes. The page comes first.
extern const std::array<ReportForm, 3> ReportForms;

/// The form that the ending of a file's name tells; a page for any other ending.
const ReportForm& FormOfFile(std::string_view path);

/// A whole report.
std::string WholeReport(const Report& report, const ReportForm& form);

/// A text marked up, as a table has it.
std::string WithoutMarkup(std::string_view text);

}  // namespace horvanta
