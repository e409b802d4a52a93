#include "astro/ephemeris_files.h"

#include "astro/timescales.h"
#include "core/numbering.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <span>
#include <system_error>
#include <utility>

namespace horvanta::ephemeris {
namespace {

using Bytes = std::array<char, 8>;

double FromLittleEndian(const char* at) {
    Bytes bytes;
    std::copy_n(at, bytes.size(), bytes.begin());
    if constexpr (std::endian::native == std::endian::big) std::ranges::reverse(bytes);
    return std::bit_cast<double>(bytes);
}

/// Nothing of a file that can't be read, or is far larger than an ephemeris of all displayable years.
std::vector<double> NumbersIn(const std::filesystem::path& path) {
    constexpr std::uintmax_t largest = 64'000'000;
    std::error_code failed;
    const std::uintmax_t size = std::filesystem::file_size(path, failed);
    if (failed || size > largest) return {};
    std::vector<char> bytes(static_cast<std::size_t>(size));
    std::ifstream file(path, std::ios::binary);
    if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return {};
    std::vector<double> numbers(bytes.size() / sizeof(Bytes));
    for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = FromLittleEndian(&bytes[i * sizeof(Bytes)]);
    return numbers;
}

/// What a file holds: `columns` numbers for each key from the first to the last.
struct Records {
    std::int64_t first = 0;
    std::int64_t last = -1;
    double epoch = 0;  ///< Number of January 1 of Gregorian year 1 in the file, where it has one.
    std::size_t columns = 1;
    std::vector<double> numbers;

    bool Holds(std::int64_t key) const { return key >= first && key <= last; }

    double At(std::int64_t key, std::size_t column) const {
        return numbers[static_cast<std::size_t>(key - first) * columns + column];
    }
};

bool IsKey(double x) { return std::fabs(x) < 1e9 && x == std::trunc(x); }

/// Nothing if header or records can't be what they should be. The header has as many numbers as fill whole records.
std::optional<Records> RecordsOf(std::span<const double> numbers, std::size_t columns) {
    const std::size_t header = columns == 1 ? 2 : columns;
    if (numbers.size() < header || !IsKey(numbers[0]) || !IsKey(numbers[1]) || numbers[1] < numbers[0]) return {};
    const auto first = static_cast<std::int64_t>(numbers[0]);
    const auto last = static_cast<std::int64_t>(numbers[1]);
    const double epoch = columns == 1 ? 0 : numbers[2];
    const auto wanted = static_cast<std::size_t>(last - first + 1) * columns;
    if (!std::isfinite(epoch) || numbers.size() - header < wanted) return {};
    const auto records = numbers.subspan(header, wanted);
    if (!std::ranges::all_of(records, [](double x) { return std::isfinite(x); })) return {};
    return Records{first, last, epoch, columns, {records.begin(), records.end()}};
}

std::vector<std::filesystem::path>& Folders() {
    static std::vector<std::filesystem::path> folders;
    return folders;
}

class File {
  public:
    File(const char* name, std::size_t columns) : name_(name), columns_(columns) {}

    /// Null if the file is absent.
    const Records* Read() {
        if (!isTried_) TryFolders();
        return records_ ? &*records_ : nullptr;
    }

    void Forget() {
        isTried_ = false;
        records_.reset();
    }

    const char* Name() const { return name_; }

  private:
    void TryFolders() {
        isTried_ = true;
        for (const std::filesystem::path& folder : Folders()) {
            const std::filesystem::path path = folder / name_;
            std::error_code none;
            if (!std::filesystem::is_regular_file(path, none)) continue;
            records_ = RecordsOf(NumbersIn(path), columns_);
            if (!records_) std::cerr << path.string() << " can't be read as an ephemeris file and is left out.\n";
            return;
        }
    }

    const char* name_;
    std::size_t columns_;
    bool isTried_ = false;
    std::optional<Records> records_;
};

File& Seasons() {
    static File file("EqSolstDE421.dat", 4);
    return file;
}

File& Quarters() {
    static File file("Lunations.dat", 4);
    return file;
}

File& Conjunctions() {
    static File file("SolexLunar.dat", 1);
    return file;
}

/// The moments of a file are terrestrial and in the file's own numbering.
std::optional<Moment> ListedMoment(File& file, std::int64_t key, double degrees) {
    const Records* records = file.Read();
    if (!records || !records->Holds(key)) return {};
    const double value = records->At(key, static_cast<std::size_t>(Degrees(degrees) / 90));
    return TerrestrialToUniversal(value + (GregorianEpoch - records->epoch));
}

std::optional<Complaint> ComplaintOf(File& file, std::int64_t key, const std::string& what, const char* title) {
    const Records* records = file.Read();
    if (!records || records->Holds(key)) return {};
    const bool isEarly = key < records->first;
    const std::string end = isEarly ? " is prior to the earliest " : " is after the last ";
    const auto number = [](std::int64_t x) { return GeneralText(static_cast<double>(x)); };
    return Complaint{title, "Requested " + what + " " + number(key) + end + what + " " +
                                number(isEarly ? records->first : records->last) + " in the SOLEX \"" + file.Name() +
                                "\" database."};
}

}  // namespace

void SetFolders(std::vector<std::filesystem::path> folders) {
    Folders() = std::move(folders);
    for (File* file : {&Seasons(), &Quarters(), &Conjunctions()}) file->Forget();
}

std::optional<Moment> ListedSeason(std::int64_t year, double degrees) { return ListedMoment(Seasons(), year, degrees); }

std::optional<Moment> ListedQuarter(std::int64_t lunation, double degrees) {
    return ListedMoment(Quarters(), lunation, degrees);
}

std::optional<double> ListedConjunction(std::int64_t month) {
    const Records* records = Conjunctions().Read();
    if (!records || !records->Holds(month)) return {};
    return records->At(month, 0);
}

std::optional<Complaint> ComplaintOfYear(std::int64_t year) {
    return ComplaintOf(Seasons(), year, "year", "Year Out-of-Range");
}

std::optional<Complaint> ComplaintOfLunation(std::int64_t lunation) {
    return ComplaintOf(Quarters(), lunation, "lunation", "Lunation Out-of-Range");
}

}  // namespace horvanta::ephemeris
