#include "device/ModelData.h"

#include <algorithm>

namespace AdvancedControl {

namespace {

bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

}  // namespace

std::string_view NameText(const NameSlot& slot) {
  const auto* const end = std::find(slot.begin(), slot.end(), '\0');
  return {slot.data(), static_cast<std::size_t>(end - slot.begin())};
}

std::string_view CutText(std::string_view text, std::size_t most) {
  if (text.size() <= most) return text;
  while (most > 0 && ContinuesCharacter(text[most])) --most;
  return text.substr(0, most);
}

NameSlot MakeNameSlot(std::string_view text) {
  NameSlot slot{};
  std::ranges::copy(CutText(text, slot.size()), slot.begin());
  return slot;
}

}  // namespace AdvancedControl
