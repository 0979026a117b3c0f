// What a long file of profiles costs: the time to read it, and the memory that its profiles hold.

#include <malloc.h>
#include <vector>

#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <benchmark/benchmark.h>

#include "bench/FleetMeasures.h"
#include "fleet/ProfileFile.h"

namespace {

/// The shipped projectors again and again, each with an address, an identity, tags and notes.
QByteArray ManyProfiles(int count) {
  QJsonObject file = QJsonDocument::fromJson(
                         ReadProfileText(QStringLiteral(BENCH_CATALOG_DIR "/projectors.json")).text)
                         .object();
  const QJsonArray shipped = file["projectors"].toArray();
  QJsonArray entries;
  for (int i = 0; i < count; ++i) {
    QJsonObject entry = shipped[i % shipped.size()].toObject();
    const QString address = QHostAddress(0x0A000000U + static_cast<quint32>(i)).toString();
    entry["name"] = QStringLiteral("Projector %1").arg(i);
    entry["identity"] = QStringLiteral("serial:%1").arg(100'000 + i);
    entry["tags"] = QJsonArray{QStringLiteral("Building %1").arg(i / 100), "lecture hall"};
    entry["notes"] = QStringLiteral("behind the door on the left");
    entry["link"] = QStringLiteral("pjlink");
    entry["connection"] =
        QJsonObject{{"network", QJsonObject{{"address", address}, {"port", 4352}}}};
    entries.append(entry);
  }
  file["projectors"] = entries;
  return QJsonDocument(file).toJson(QJsonDocument::Compact);
}

double HeapMegabytes() {
  const struct mallinfo2 heap = mallinfo2();
  return static_cast<double>(heap.uordblks + heap.hblkhd) / (1024 * 1024);
}

// Argument: how many profiles. "MB_most" is the most that the process has had so far.
void ReadProfiles(benchmark::State& state) {
  const QByteArray text = ManyProfiles(static_cast<int>(state.range(0)));
  double held = 0;
  for ([[maybe_unused]] auto iteration : state) {
    const double before = HeapMegabytes();
    const ProfileList list = ParseProfileList(text, QStringLiteral("p.json"));
    held = HeapMegabytes() - before;
    if (!list.error.isEmpty()) state.SkipWithError(qPrintable(list.error));
  }
  state.counters["MB_held"] = held;
  state.counters["MB_most"] = StatusOf("self", "VmHWM:") / 1024;
  state.counters["MB_file"] = static_cast<double>(text.size()) / (1024 * 1024);
}
BENCHMARK(ReadProfiles)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace
