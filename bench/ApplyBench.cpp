// The cost of applying settings to many distant projectors: the program runs as a separate process,
// with each projector behind a relay.

#include <algorithm>
#include <array>
#include <chrono>
#include <future>
#include <memory>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include "app/profiles/ProjectorAccess.h"
#include "bench/Relay.h"
#include "fleet/ProfileFile.h"
#include "simulator/WireServer.h"
#include "snapshots/Snapshot.h"

namespace {

constexpr int kRooms = 200;
constexpr int kDiffering = 40;
constexpr int kJobs = 16;
constexpr std::chrono::milliseconds kRoundTrip{20};

const FleetProfile& Profile() {
  static const auto profiles =
      ReadProfileList(QStringLiteral(BENCH_CATALOG_DIR "/projectors.json")).profiles;
  return *std::ranges::find(profiles, "Projector 5-54", &FleetProfile::name);
}

/// Projectors behind relays, all served by one thread.
class FarProjectors {
 public:
  FarProjectors() {
    std::promise<std::vector<std::uint16_t>> listening;
    auto ports = listening.get_future();
    thread_ = std::thread([this, &listening] {
      QEventLoop loop;
      loop_ = &loop;
      std::vector<std::unique_ptr<WireServer>> servers;
      std::vector<std::unique_ptr<Relay>> relays;
      std::vector<std::uint16_t> found;
      for (int i = 0; i < kRooms; ++i) {
        servers.push_back(std::make_unique<WireServer>(
            std::make_shared<SimulatedProjector>(SimulatedModelOf(Profile()))));
        const std::uint16_t direct = servers.back()->Listen(QHostAddress::LocalHost, 0);
        relays.push_back(std::make_unique<Relay>(direct, kRoundTrip));
        found.push_back(relays.back()->Port());
      }
      listening.set_value(found);
      loop.exec();
    });
    ports_ = ports.get();
  }
  ~FarProjectors() {
    QMetaObject::invokeMethod(loop_, &QEventLoop::quit, Qt::QueuedConnection);
    thread_.join();
  }

  /// A profile file for them, with the names "Room 0", "Room 1" and so on.
  QByteArray Profiles() const {
    QFile file(QStringLiteral(BENCH_CATALOG_DIR "/projectors.json"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
    QJsonObject room;
    for (const QJsonValue& entry : json["projectors"].toArray()) {
      if (entry["name"].toString().toStdString() == Profile().name) room = entry.toObject();
    }
    QJsonArray rooms;
    for (int i = 0; i < kRooms; ++i) {
      room["name"] = QStringLiteral("Room %1").arg(i);
      room["link"] = "network";
      room["connection"] =
          QJsonObject{{"network", QJsonObject{{"address", "127.0.0.1"},
                                              {"port", ports_[static_cast<std::size_t>(i)]}}}};
      rooms.append(room);
    }
    json["projectors"] = rooms;
    return QJsonDocument(json).toJson();
  }

 private:
  QEventLoop* loop_ = nullptr;
  std::vector<std::uint16_t> ports_;
  std::thread thread_;
};

/// Settings that need one command each, with one of two sets of values.
Snapshot Settings(bool second) {
  const ModelSettings model(Profile().model->data);
  Snapshot snapshot = EmptySnapshot("bench", model.Model());
  for (const ModelSetting& setting : model.All()) {
    if (!setting.Restorable() || setting.IsPerSource()) continue;
    const bool isList = setting.entries.size() > 1;
    if (!isList && !setting.range) continue;
    const int value =
        isList ? setting.entries[second ? 1 : 0].value : setting.range->minimum + (second ? 1 : 0);
    snapshot.settings.push_back({std::string(setting.key), value, {}});
    if (std::ssize(snapshot.settings) == kDiffering) break;
  }
  return snapshot;
}

struct Cost {
  double seconds = 0;
  double megabytes = 0;  ///< Peak memory of the program.
  bool done = false;
};

Cost Apply(const QTemporaryDir& folder, bool second, const char* rooms) {
  const std::string profiles = folder.filePath("rooms.json").toStdString();
  const std::string file = folder.filePath(second ? "second.json" : "first.json").toStdString();
  const std::string jobs = std::to_string(kJobs);
  const std::array<const char*, 9> arguments{BENCH_ACCTL,  "--profiles", profiles.c_str(),
                                             "--jobs",     jobs.c_str(), "apply",
                                             file.c_str(), rooms,        nullptr};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", 1, 0);
  pid_t child = 0;
  const auto start = std::chrono::steady_clock::now();
  posix_spawn(&child, arguments[0], &actions, nullptr, const_cast<char* const*>(arguments.data()),
              environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  return {taken.count(), static_cast<double>(usage.ru_maxrss) / 1024, status == 0};
}

void Write(const QTemporaryDir& folder, const char* name, const QByteArray& text) {
  QFile file(folder.filePath(name));
  if (file.open(QIODevice::WriteOnly)) file.write(text);
}

// "ratio" is the time for all projectors, divided by the ideal time: that for one projector,
// multiplied by their number and divided by the number of jobs.
void ApplyToRooms(benchmark::State& state) {
  const FarProjectors rooms;
  const QTemporaryDir folder;
  Write(folder, "rooms.json", rooms.Profiles());
  Write(folder, "first.json", WriteSnapshot(Settings(false)));
  Write(folder, "second.json", WriteSnapshot(Settings(true)));
  Apply(folder, false, "Room *");
  bool second = true;
  for ([[maybe_unused]] auto round : state) {
    const Cost one = Apply(folder, second, "Room 0");
    const Cost all = Apply(folder, !second, "Room *");
    const Cost back = Apply(folder, second, "Room *");
    if (!one.done || !all.done || !back.done) return state.SkipWithError("something was refused");
    state.SetIterationTime(back.seconds);
    state.counters["one_s"] = one.seconds;
    state.counters["ratio"] = back.seconds / (one.seconds * kRooms / kJobs);
    state.counters["one_MB"] = one.megabytes;
    state.counters["all_MB"] = back.megabytes;
    second = !second;
  }
}

BENCHMARK(ApplyToRooms)->Unit(benchmark::kSecond)->UseManualTime()->Iterations(1);

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
