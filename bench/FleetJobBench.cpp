// A setting changed on many projectors that are far away: one job, and beside it as many jobs of
// one projector each, all at the same time.

#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <QCoreApplication>
#include <QEventLoop>
#include <QHostAddress>
#include <benchmark/benchmark.h>

#include "bench/FleetMeasures.h"
#include "bench/Relay.h"
#include "fleet/FleetJob.h"
#include "simulator/SimulatedProjector.h"
#include "simulator/WireServer.h"

namespace {

ModelData Model() {
  ModelData model;
  model.DialogType = 5;
  model.ModelCode = 54;
  return model;
}

/// Simulated projectors behind relays, all served by one thread.
class FarProjectors {
 public:
  FarProjectors(int count, std::chrono::milliseconds roundTrip) {
    std::promise<std::vector<std::uint16_t>> listening;
    auto ports = listening.get_future();
    thread_ = std::thread([this, count, roundTrip, &listening] {
      QEventLoop loop;
      loop_ = &loop;
      std::vector<std::unique_ptr<WireServer>> servers;
      std::vector<std::unique_ptr<Relay>> relays;
      std::vector<std::uint16_t> found;
      for (int i = 0; i < count; ++i) {
        const auto device = std::make_shared<SimulatedProjector>(DescribeModel(Model()));
        device->Execute({PjtOperation::SetPowerOn});
        servers.push_back(std::make_unique<WireServer>(device));
        const std::uint16_t direct = servers.back()->Listen(QHostAddress::LocalHost, 0);
        relays.push_back(std::make_unique<Relay>(direct, roundTrip));
        found.push_back(relays.back()->Port());
      }
      listening.set_value(std::move(found));
      loop.exec();
    });
    const auto model = std::make_shared<const ModelData>(Model());
    for (const std::uint16_t port : ports.get()) {
      targets_.push_back({std::to_string(port), TcpAddress{"127.0.0.1", port}, model});
    }
  }
  ~FarProjectors() {
    QMetaObject::invokeMethod(loop_, &QEventLoop::quit, Qt::QueuedConnection);
    thread_.join();
  }
  FarProjectors(const FarProjectors&) = delete;
  FarProjectors& operator=(const FarProjectors&) = delete;

  const std::vector<FleetTarget>& Targets() const { return targets_; }

 private:
  QEventLoop* loop_ = nullptr;
  std::vector<FleetTarget> targets_;
  std::thread thread_;
};

// Arguments: how many projectors, and the milliseconds that each answer takes.
void SetOnMany(benchmark::State& state) {
  int arguments = 0;
  const QCoreApplication application(arguments, nullptr);
  const FarProjectors far(static_cast<int>(state.range(0)),
                          std::chrono::milliseconds(state.range(1)));
  const std::vector<std::string> folders{BENCH_CATALOG_DIR};
  const SettingTexts texts(folders, 1033);
  int value = 0;
  const auto set = [&](std::size_t jobs) {
    const SetSetting work{"setup.mirror", std::to_string(++value % 2)};
    const auto start = Clock::now();
    std::vector<std::unique_ptr<FleetJob>> all;
    const std::size_t each = far.Targets().size() / jobs;
    for (auto first = far.Targets().begin(); first != far.Targets().end();
         first += static_cast<std::ptrdiff_t>(each)) {
      all.push_back(std::make_unique<FleetJob>(
          nullptr, std::vector<FleetTarget>(first, first + static_cast<std::ptrdiff_t>(each)), work,
          texts));
    }
    for (const auto& job : all) {
      job->Wait();
      for (const WorkResult& result : job->Results()) {
        if (result.outcome != WorkOutcome::Done) state.SkipWithError(result.reason.c_str());
      }
    }
    return SecondsSince(start);
  };
  set(1);
  double together = 0;
  double apart = 0;
  for ([[maybe_unused]] auto iteration : state) {
    const double seconds = set(1);
    state.SetIterationTime(seconds);
    together += seconds;
    apart += set(far.Targets().size());
  }
  state.counters["ratio"] = together / apart;
}
BENCHMARK(SetOnMany)
    ->Args({50, 50})
    ->ArgNames({"projectors", "ms"})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
