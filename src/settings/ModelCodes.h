#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "Namespace.h"

namespace AdvancedControl {

/// A set of model codes.
class ModelCodes {
 public:
  static constexpr std::size_t kCapacity = 20;

  template <std::same_as<int>... Codes>
  constexpr ModelCodes(Codes... codes) : codes_{codes...}, count_(sizeof...(codes)) {
    static_assert(sizeof...(codes) <= kCapacity);
  }

  constexpr bool Empty() const { return count_ == 0; }
  constexpr bool Contains(int code) const {
    const auto end = codes_.begin() + count_;
    return std::find(codes_.begin(), end, code) != end;
  }

 private:
  std::array<int, kCapacity> codes_;
  std::ptrdiff_t count_;
};

/// The models that have a row, as given in the row itself; by default all of them.
struct Presence {
  enum class Listed : std::uint8_t {
    Have,  ///< Only the models of `codes` have the row.
    Lack,  ///< All models but those of `codes` have it.
  };

  ModelCodes codes{};
  Listed listed = Listed::Lack;

  constexpr bool Has(int modelCode) const {
    return codes.Contains(modelCode) == (listed == Listed::Have);
  }
};

constexpr Presence OnlyOn(std::same_as<int> auto... codes) {
  return {{codes...}, Presence::Listed::Have};
}
constexpr Presence NotOn(std::same_as<int> auto... codes) {
  return {{codes...}, Presence::Listed::Lack};
}

/// A value that is different on some models.
template <class Value>
struct PerModel {
  constexpr PerModel() = default;
  constexpr PerModel(Value all) : value(all) {}
  constexpr PerModel(Value others, ModelCodes models, Value own)
      : value(others), codes(models), exception(own) {}

  constexpr Value Of(int modelCode) const { return codes.Contains(modelCode) ? exception : value; }

  Value value{};
  ModelCodes codes{};
  Value exception{};
};

/// The rows of some models: one digit per row in the page's order, 1 for a row that they have.
/// Blanks may group the digits.
struct ModelRows {
  ModelCodes codes;
  std::string_view digits;

  /// Whether the models have a row; every model has the rows after the last digit.
  constexpr bool Has(std::size_t row) const {
    for (const char digit : digits) {
      if (digit != ' ' && row-- == 0) return digit == '1';
    }
    return true;
  }
};

/// Whether each line has a digit for every row; for a static_assert beside a table.
constexpr bool AreComplete(std::span<const ModelRows> table, std::ptrdiff_t rowCount) {
  return std::all_of(table.begin(), table.end(), [rowCount](const ModelRows& models) {
    const auto count = [&models](char digit) {
      return std::count(models.digits.begin(), models.digits.end(), digit);
    };
    return count('0') + count('1') == rowCount;
  });
}

}  // namespace AdvancedControl
