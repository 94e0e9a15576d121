#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace wordhawk {

/// A value for each UTF-16 unit, where nearly all have the same one: rows of 256 are made only for
/// those that differ. A table of all 65,536 would take longer to fill than a short text to check.
template <class Value>
class UnitTable {
  public:
    explicit UnitTable(Value usual) : rows_(1) { rows_[0].fill(usual); }

    Value operator[](wchar_t c) const {
        const auto unit = static_cast<std::uint16_t>(c);
        return rows_[row_of_[unit >> 8]][unit & 0xFF];
    }

    void Set(wchar_t c, Value value) {
        const auto unit = static_cast<std::uint16_t>(c);
        std::uint16_t& row = row_of_[unit >> 8];
        if (row == 0) {
            row = static_cast<std::uint16_t>(rows_.size());
            rows_.push_back(rows_[0]);
        }
        rows_[row][unit & 0xFF] = value;
    }

  private:
    std::vector<std::array<Value, 256>> rows_;
    /// By the upper byte; row 0 has the usual value throughout.
    std::array<std::uint16_t, 256> row_of_{};
};

}  // namespace wordhawk
