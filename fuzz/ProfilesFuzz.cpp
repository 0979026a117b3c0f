// Any bytes as a profile file: the result is projectors or a one-line error.

#include <cstddef>
#include <cstdint>

#include "fleet/ProfileFile.h"
#include "fuzz/Check.h"
#include "settings/Range.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const ProfileList contents = ParseProfileList(text, "p.json");
  Check(contents.error.isEmpty() != contents.profiles.empty());
  for (const QChar c : contents.error) Check(c >= QLatin1Char(' '));
  constexpr Range kNone{1, 0};
  for (const FleetProfile& profile : contents.profiles) {
    Check(!profile.name.empty() && !ConnectionText(profile.connection).isEmpty());
    for (const std::string& range : profile.model->info.RangeSlots) {
      Check(range.empty() || ParseRange(range, 0, kNone) != kNone);
    }
  }
  return 0;
}
