#include "settings/ListEntry.h"

#include <algorithm>
#include <utility>

#include "settings/CatalogNumbers.h"

namespace AdvancedControl {

namespace {

// Entries of a capability list. The text of a device value has the number `base` + value.
std::vector<ListEntry> FromList(const CountedList& list, int base) {
  std::vector<ListEntry> entries;
  for (int i = 0; i < list.Size(); ++i) {
    const int value = list.values[static_cast<std::size_t>(i)];
    entries.emplace_back(base + value, value);
  }
  return entries;
}

constexpr std::pair<std::string_view, int> kWhisperTexts[] = {{"Normal", ListText::WhisperNormal},
                                                              {"Whisper", ListText::WhisperWhisper},
                                                              {"Bright", ListText::WhisperBright}};

constexpr PerModel<int> kAspectBase{
    ListText::AspectBase, {8, 10, 47, 48}, ListText::WideAspectBase};

}  // namespace

std::vector<ListEntry> Entries::Of(const ModelData& model) const {
  if (maker_ != nullptr) return maker_(model);
  std::span<const ListEntry> entries = fixed_;
  const auto own = std::ranges::find_if(perModel_, [&model](const ModelEntries& candidate) {
    return candidate.codes.Empty() || candidate.codes.Contains(model.ModelCode);
  });
  if (own != perModel_.end()) entries = own->entries;
  return {entries.begin(), entries.end()};
}

std::vector<ListEntry> GammaEntries(const ModelData& model) {
  return FromList(model.GammaList, ListText::GammaBase);
}

std::vector<ListEntry> ColorTempEntries(const ModelData& model) {
  return FromList(model.ColorTempList, ListText::ColorTempBase);
}

std::vector<ListEntry> Picture1ColorTempEntries(const ModelData& model) {
  return FromList(model.ColorTempList, ListText::Picture1ColorTempBase);
}

std::vector<ListEntry> WhisperEntries(const ModelData& model) {
  std::vector<ListEntry> entries;
  for (int i = 0; i < model.WhisperList.Size(); ++i) {
    const std::string_view name = NameText(model.WhisperList.names[static_cast<std::size_t>(i)]);
    const auto* known =
        std::ranges::find(kWhisperTexts, name, [](const auto& text) { return text.first; });
    if (known == std::end(kWhisperTexts)) continue;
    entries.emplace_back(known->second, static_cast<int>(entries.size()));
  }
  return entries;
}

std::vector<ListEntry> AspectEntries(const ModelData& model) {
  return FromList(model.AspectList, kAspectBase.Of(model.ModelCode));
}

std::vector<ListEntry> SourceEntries(const ModelData& model) {
  std::vector<ListEntry> entries;
  for (std::size_t i = 0; i < static_cast<std::size_t>(model.MySourceList.Size()); ++i) {
    entries.emplace_back(NameText(model.MySourceList.names[i]),
                         model.MySourceList.firstValues[i] & 0xFFFF);
  }
  return entries;
}

int PositionOf(std::span<const ListEntry> entries, int value) {
  const auto found = std::ranges::find(entries, value, &ListEntry::value);
  return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

}  // namespace AdvancedControl
