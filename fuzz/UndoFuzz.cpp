// Any bytes as an undo file: the result is a run or a one-line error, and what was
// undone is still known after the file says so.

#include <cstddef>
#include <cstdint>

#include "app/acctl/RecordedRun.h"
#include "fuzz/Check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const RecordedRun run = ParseRun(text, "run.acctl-undo");
  Check(run.name == "run");
  for (const QChar c : run.error) Check(c >= QLatin1Char(' '));
  if (!run.error.isEmpty()) return 0;
  QByteArray written = HeaderLine(run);
  for (const auto& [id, snapshot] : run.undo) {
    Check(!id.empty() && snapshot != nullptr);
    const auto place = run.places.find(id);
    written += ChangeLine({id, place == run.places.end() ? "" : place->second}, *snapshot);
  }
  const RecordedRun again = ParseRun(written, run.path);
  Check(again.error.isEmpty() && again.undo.size() == run.undo.size());
  Check(again.places == run.places);
  for (const auto& [id, snapshot] : run.undo) Check(*again.undo.at(id) == *snapshot);
  if (run.isOfJob) return 0;
  const RecordedRun undone = ParseRun(text + UndoneLine(), run.path);
  Check(undone.error.isEmpty() && undone.isUndone && undone.undo.size() >= run.undo.size());
  return 0;
}
