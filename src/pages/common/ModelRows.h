#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <span>
#include <string_view>

/// Model codes that share something.
class ModelCodes {
 public:
  static constexpr std::size_t kCapacity = 20;

  template <std::same_as<int>... Codes>
  constexpr ModelCodes(Codes... codes) : codes_{codes...}, count_(sizeof...(codes)) {
    static_assert(sizeof...(codes) <= kCapacity);
  }

  constexpr bool Contains(int code) const {
    const auto end = codes_.begin() + count_;
    return std::find(codes_.begin(), end, code) != end;
  }

 private:
  std::array<int, kCapacity> codes_;
  std::ptrdiff_t count_;
};

/// The rows of some models: a digit per row in the page's row order, 1 for a row that they have.
/// Blanks may group the digits.
struct ModelRows {
  ModelCodes codes;
  std::string_view digits;
};

/// Which rows of a page a model has.
class RowSet {
 public:
  static constexpr std::size_t kCapacity = 32;

  constexpr RowSet() = default;

  /// The rows of a model; none for a code that the table does not list.
  constexpr static RowSet Of(int modelCode, std::span<const ModelRows> table) {
    RowSet rows;
    for (const ModelRows& models : table) {
      if (!models.codes.Contains(modelCode)) continue;
      rows.known_ = true;
      std::size_t row = 0;
      for (const char digit : models.digits) {
        if (digit != ' ') rows.has_[row++] = digit == '1';
      }
      break;
    }
    return rows;
  }

  /// The table lists the model.
  constexpr bool Known() const { return known_; }
  constexpr bool Has(std::size_t row) const { return has_[row]; }

 private:
  std::array<bool, kCapacity> has_{};
  bool known_ = false;
};

/// For a static_assert beside a table: each line tells every row.
constexpr bool AreComplete(std::span<const ModelRows> table, std::ptrdiff_t rowCount) {
  return std::all_of(table.begin(), table.end(), [rowCount](const ModelRows& models) {
    const auto count = [&models](char digit) {
      return std::count(models.digits.begin(), models.digits.end(), digit);
    };
    return count('0') + count('1') == rowCount;
  });
}
