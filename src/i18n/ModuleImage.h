#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Namespace.h"

namespace AdvancedControl {

using Bytes = std::span<const std::byte>;

/// A part of `bytes`; nothing if it is not completely inside.
inline std::optional<Bytes> Slice(Bytes bytes, std::uint64_t offset, std::uint64_t length) {
  if (offset > bytes.size() || length > bytes.size() - offset) return {};
  return bytes.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(length));
}

/// Little-endian integers; `bytes` must be large enough.
inline std::uint16_t U16(Bytes bytes, std::size_t offset) {
  return static_cast<std::uint16_t>(std::to_integer<unsigned>(bytes[offset]) |
                                    std::to_integer<unsigned>(bytes[offset + 1]) << 8);
}

inline std::uint32_t U32(Bytes bytes, std::size_t offset) {
  return U16(bytes, offset) | static_cast<std::uint32_t>(U16(bytes, offset + 2)) << 16;
}

/// The largest module that is read.
inline constexpr std::size_t kMaxModuleBytes = std::size_t{32} << 20;

/// The bytes of a regular file; none if it is larger than that or not a regular file. Any thread.
std::vector<std::byte> ReadModule(const std::string& path);

/// The sections of a module and its resource directory. Refers to the bytes passed to `Open`.
class ModuleImage {
 public:
  /// Nothing if `file` is not a module or is damaged.
  static std::optional<ModuleImage> Open(Bytes file);

  /// The bytes from a relative virtual address to the end of its section; nothing outside all
  /// sections.
  std::optional<Bytes> From(std::uint32_t address) const;

  Bytes Resources() const { return resources_; }

 private:
  struct Section {
    std::uint32_t address;
    Bytes content;
  };
  std::vector<Section> sections_;
  Bytes resources_;
};

}  // namespace AdvancedControl
