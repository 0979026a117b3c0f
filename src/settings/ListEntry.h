#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "device/ModelData.h"
#include "settings/ModelCodes.h"

namespace AdvancedControl {

/// An entry of a list: its text and its device value.
struct ListEntry {
  constexpr ListEntry() = default;
  constexpr ListEntry(int listText, int deviceValue = 0) : text(listText), value(deviceValue) {}
  constexpr ListEntry(const char* fixedText, int deviceValue = 0)
      : name(fixedText), value(deviceValue) {}
  constexpr ListEntry(std::string_view fixedText, int deviceValue)
      : name(fixedText), value(deviceValue) {}

  std::optional<int> text{};  ///< Number in the list category; without one, `name` is used.
  std::string_view name{};    ///< A text that is the same in every language.
  int value = 0;

  friend bool operator==(const ListEntry&, const ListEntry&) = default;
};

/// Entries with the values `first`, `first` + 1 and so on.
template <int first = 0, class... Texts>
constexpr std::array<ListEntry, sizeof...(Texts)> Numbered(Texts... texts) {
  std::array<ListEntry, sizeof...(Texts)> entries{ListEntry(texts)...};
  for (std::size_t i = 0; i < entries.size(); ++i) entries[i].value = first + static_cast<int>(i);
  return entries;
}

/// The entries of some models; without codes, the entries of all other models.
struct ModelEntries {
  ModelCodes codes;
  std::span<const ListEntry> entries;
};

/// The entries of a list: the same for every model, given per model, or made from the model's data.
class Entries {
 public:
  using Maker = std::vector<ListEntry> (*)(const ModelData& model);

  constexpr Entries() = default;
  template <std::size_t count>
  constexpr Entries(const std::array<ListEntry, count>& entries) : fixed_(entries) {}
  template <std::size_t count>
  constexpr Entries(const ListEntry (&entries)[count]) : fixed_(entries) {}
  template <std::size_t count>
  constexpr Entries(const ModelEntries (&perModel)[count]) : perModel_(perModel) {}
  constexpr Entries(Maker maker) : maker_(maker) {}

  /// The entries of this model, in list order. Names may point into `model`.
  PROJECTOR_SETTINGS_EXPORT std::vector<ListEntry> Of(const ModelData& model) const;

 private:
  std::span<const ListEntry> fixed_{};
  std::span<const ModelEntries> perModel_{};
  Maker maker_ = nullptr;
};

// Lists made from the model's data. Any thread.

PROJECTOR_SETTINGS_EXPORT std::vector<ListEntry> GammaEntries(const ModelData& model);
PROJECTOR_SETTINGS_EXPORT std::vector<ListEntry> ColorTempEntries(const ModelData& model);
/// The same with the texts that only one page uses.
std::vector<ListEntry> Picture1ColorTempEntries(const ModelData& model);
/// The lamp modes whose names the dialogs know. The value of a mode is its position among the known
/// ones, because the projector counts only these.
PROJECTOR_SETTINGS_EXPORT std::vector<ListEntry> WhisperEntries(const ModelData& model);
PROJECTOR_SETTINGS_EXPORT std::vector<ListEntry> AspectEntries(const ModelData& model);
/// The input sources with their own names. The upper half of a source's word is not part of its
/// code.
PROJECTOR_SETTINGS_EXPORT std::vector<ListEntry> SourceEntries(const ModelData& model);

/// Position of the first entry with this value, or −1.
PROJECTOR_SETTINGS_EXPORT int PositionOf(std::span<const ListEntry> entries, int value);

}  // namespace AdvancedControl
