#pragma once

#include "core/numbering.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <tuple>
#include <utility>

namespace horvanta {

/// The last N results of a computation. The key holds everything that a result depends on, so that nothing ever has to
/// be cleared; a key that is not equal to itself, such as NaN, is never remembered.
template <std::size_t N, class Key, class Value>
class Memo {
  public:
    /// The value for a key: remembered, or made now in place of the oldest. It stays until N others have been made.
    template <class Make>
    const Value& Of(const Key& key, const Make& make) {
        for (std::size_t step = 0; step < N; ++step) {
            const std::size_t slot = (last_ + step) % N;
            if (entries_[slot].key != key) continue;
            last_ = slot;
            return entries_[slot].value;
        }
        Value value = make();  // which may ask this memo itself
        oldest_ = (oldest_ + 1) % N;
        last_ = oldest_;
        entries_[last_] = {key, std::move(value)};
        return entries_[last_].value;
    }

  private:
    struct Entry {
        std::optional<Key> key;
        Value value{};
    };

    std::array<Entry, N> entries_{};
    std::size_t last_ = 0;  ///< The slot that answered last, where the next search begins.
    std::size_t oldest_ = 0;
};

/// The date of a moment by a conversion, or what else it makes of a day, remembered for two months of days under the
/// numbering and whatever else the dates of that calendar depend on. All who show one day share one conversion, and so
/// does a month grid from day to day.
template <auto Convert, class... Others>
const auto& DateOn(Moment x, const Others&... others) {
    using Key = std::tuple<FixedDay, std::int64_t, Others...>;
    static Memo<64, Key, decltype(Convert(x))> memo;
    const FixedDay day = Floor(x);
    return memo.Of(Key(day, NumberingSerial, others...), [day] { return Convert(day); });
}

}  // namespace horvanta
