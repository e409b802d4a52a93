#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace horvanta {

/// A file that is written beside the place it is to take, and takes it in one step when it is complete: until then an
/// older file stands there whole. What never took its place is removed with the object.
///
/// Every failure is told by the system's words for it, and what comes behind the first one does nothing.
class ReportFile {
  public:
    /// Begins the file, if there is no older one, or if that may be written. A link leads to the file that it names.
    explicit ReportFile(const std::string& path);
    ~ReportFile();
    ReportFile(const ReportFile&) = delete;
    ReportFile& operator=(const ReportFile&) = delete;

    void Write(std::string_view text);

    /// Ends the writing: what was written is complete, or it failed.
    void Complete();

    /// Takes its place, with the rights of the file that had it. False if that failed; it may be tried again.
    bool TakePlace();

    bool hasOlder() const { return hasOlder_; }  ///< A file stands in its place.
    bool hasFailed() const { return !failure_.empty(); }
    const std::string& failure() const { return failure_; }

    /// Why the unfinished file can't be removed; empty once it is.
    std::string Remove();

    const std::string& beside() const { return beside_; }  ///< Where it is written.

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void Fail();

    std::string path_;
    std::string beside_;
    std::unique_ptr<std::FILE, Closer> file_;
    std::string failure_;
    bool isBegun_ = false;  ///< It stands beside.
    bool hasOlder_ = false;
};

}  // namespace horvanta
