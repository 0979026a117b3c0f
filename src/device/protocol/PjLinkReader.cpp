#include "device/protocol/PjLinkReader.h"

namespace AdvancedControl {

namespace {

constexpr std::string_view kEnds = "\r\n";

}  // namespace

void PjLinkReader::Add(std::string_view bytes) {
  for (const char byte : bytes) {
    const bool isEmptyLine = bytes_.empty() && kEnds.find(byte) != std::string_view::npos;
    if (byte != '\0' && !isEmptyLine) bytes_.push_back(byte);
  }
}

std::optional<std::string> PjLinkReader::Next() {
  const std::size_t end = bytes_.find_first_of(kEnds);
  if (end == std::string::npos) return std::nullopt;
  std::string line = bytes_.substr(0, end);
  bytes_.erase(0, bytes_.find_first_not_of(kEnds, end));
  return line;
}

}  // namespace AdvancedControl
