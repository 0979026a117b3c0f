#include "device/ModelData.h"

#include <algorithm>

namespace {

bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

}  // namespace

std::string_view NameText(const NameSlot& slot) {
  const auto* const end = std::find(slot.begin(), slot.end(), '\0');
  return {slot.data(), static_cast<std::size_t>(end - slot.begin())};
}

NameSlot MakeNameSlot(std::string_view text) {
  std::size_t length = std::min(text.size(), NameSlot{}.size());
  if (length < text.size()) {
    while (length > 0 && ContinuesCharacter(text[length])) --length;
  }
  NameSlot slot{};
  std::copy_n(text.begin(), length, slot.begin());
  return slot;
}
