// Any bytes as a file of settings: the result is settings that are the same after writing and
// reading, or a one-line error.

#include <cstddef>
#include <cstdint>

#include "fuzz/Check.h"
#include "snapshots/Snapshot.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const SnapshotContents contents = ReadSnapshot(text);
  if (contents.error.isEmpty()) {
    const SnapshotContents again = ReadSnapshot(WriteSnapshot(contents.snapshot));
    Check(again.error.isEmpty() && again.snapshot == contents.snapshot);
  } else {
    Check(contents.snapshot.settings.empty());
    for (const QChar c : contents.error) Check(c >= QLatin1Char(' '));
  }
  return 0;
}
