#include "i18n/ModuleImage.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace AdvancedControl {

namespace {

constexpr std::size_t kMaxSections = 96;

}  // namespace

// The file is not mapped, because truncating a mapped file would crash the program.
std::vector<std::byte> ReadModule(const std::string& path) {
  std::vector<std::byte> bytes;
  // O_NONBLOCK, because the name may be that of a pipe, whose opening would wait for the other end.
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return bytes;
  struct stat status {};
  fstat(file, &status);
  if (S_ISREG(status.st_mode) && std::cmp_less_equal(status.st_size, kMaxModuleBytes)) {
    bytes.resize(static_cast<std::size_t>(status.st_size));
    std::size_t got = 0;
    while (got < bytes.size()) {
      const ssize_t count = TEMP_FAILURE_RETRY(read(file, bytes.data() + got, bytes.size() - got));
      if (count <= 0) break;
      got += static_cast<std::size_t>(count);
    }
    bytes.resize(got);
  }
  close(file);
  return bytes;
}

std::optional<ModuleImage> ModuleImage::Open(Bytes file) {
  const auto dosHeader = Slice(file, 0, 64);
  if (!dosHeader || U16(*dosHeader, 0) != 0x5A4D) return {};
  const std::uint64_t headerAt = U32(*dosHeader, 0x3C);
  const auto header = Slice(file, headerAt, 24);
  if (!header || U32(*header, 0) != 0x00004550) return {};

  const std::size_t optionalSize = U16(*header, 20);
  const auto optional = Slice(file, headerAt + 24, optionalSize);
  if (!optional || optionalSize < 2) return {};
  const std::uint16_t magic = U16(*optional, 0);
  if (magic != 0x010B && magic != 0x020B) return {};
  const std::size_t directoriesAt = magic == 0x020B ? 112 : 96;
  constexpr std::size_t kResourceDirectory = 2;
  if (optionalSize < directoriesAt + 8 * (kResourceDirectory + 1)) return {};
  if (U32(*optional, directoriesAt - 4) <= kResourceDirectory) return {};

  ModuleImage image;
  const std::size_t sections = U16(*header, 6);
  const auto table = Slice(file, headerAt + 24 + optionalSize, 40 * sections);
  if (!table || sections > kMaxSections) return {};
  for (std::size_t i = 0; i < sections; ++i) {
    const Bytes entry = table->subspan(40 * i, 40);
    const std::uint32_t size = U32(entry, 16);
    const auto content = Slice(file, size == 0 ? 0 : U32(entry, 20), size);
    if (!content) return {};
    image.sections_.push_back({U32(entry, 12), *content});
  }

  const auto resources = image.From(U32(*optional, directoriesAt + 8 * kResourceDirectory));
  if (!resources) return {};
  image.resources_ = *resources;
  return image;
}

std::optional<Bytes> ModuleImage::From(std::uint32_t address) const {
  for (const Section& section : sections_) {
    if (address >= section.address && address - section.address < section.content.size()) {
      return section.content.subspan(address - section.address);
    }
  }
  return {};
}

}  // namespace AdvancedControl
