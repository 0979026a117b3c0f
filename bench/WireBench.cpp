#include <algorithm>
#include <future>
#include <memory>
#include <thread>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTabBar>
#include <benchmark/benchmark.h>

#include "bench/BenchSupport.h"
#include "bench/Relay.h"
#include "device/ModelDataIntake.h"
#include "device/channels/BoundedChannel.h"
#include "device/channels/ForwardingChannel.h"
#include "device/channels/TcpChannel.h"
#include "host/CAdvanceDlg.h"
#include "settings/PageSets.h"
#include "simulator/SimulatedProjector.h"
#include "simulator/WireServer.h"

namespace {

constexpr int kDialogType = 5;
constexpr int kModelCode = 54;

/// A projector behind a relay, on their own thread.
class FarProjector {
 public:
  FarProjector(const CModelInfo2& model, std::chrono::milliseconds roundTrip) {
    std::promise<std::uint16_t> listening;
    auto port = listening.get_future();
    thread_ = std::thread([this, &model, roundTrip, &listening] {
      QEventLoop loop;
      loop_ = &loop;
      WireServer server(std::make_shared<SimulatedProjector>(DescribeModel(MakeModelData(model))));
      const std::uint16_t direct = server.Listen(QHostAddress::LocalHost, 0);
      const Relay relay(direct, roundTrip);
      relay_ = &relay;
      listening.set_value(roundTrip.count() > 0 ? relay.Port() : direct);
      loop.exec();
    });
    port_ = port.get();
  }
  ~FarProjector() {
    QMetaObject::invokeMethod(loop_, &QEventLoop::quit, Qt::QueuedConnection);
    thread_.join();
  }

  std::uint16_t Port() const { return port_; }
  /// See `Relay::Exchanges`.
  int Exchanges() const { return relay_->Exchanges(); }

 private:
  const Relay* relay_ = nullptr;
  QEventLoop* loop_ = nullptr;
  std::uint16_t port_ = 0;
  std::thread thread_;
};

/// Counts commands, records the time of the first one, and forwards announcements only if wanted.
class Counting final : public ForwardingChannel {
 public:
  Counting(std::shared_ptr<ProjectorChannel> inner, bool announces)
      : ForwardingChannel(std::move(inner)), announces_(announces) {}

  PjtReply Execute(const PjtCommand& command) override {
    if (answered + unanswered == 0) start = Clock::now();
    const PjtReply reply = Inner().Execute(command);
    ++(reply.answered ? answered : unanswered);
    return reply;
  }
  void Announce(std::span<const PjtCommand> reads) override {
    if (announces_) Inner().Announce(reads);
  }

  int answered = 0;
  int unanswered = 0;
  Clock::time_point start{};

 private:
  const bool announces_;
};

std::shared_ptr<Counting> ConnectTo(const FarProjector& projector, bool announces) {
  return std::make_shared<Counting>(
      std::make_shared<BoundedChannel>(std::make_shared<TcpChannel>("127.0.0.1", projector.Port())),
      announces);
}

// `seconds` is the time from the first command on, `exchanges` the sum over all iterations.
void SetCounters(benchmark::State& state, const Counting& channel, double seconds, int exchanges) {
  state.counters["reads"] = channel.answered;
  state.counters["median_ms"] = seconds * 1000;
  if (state.range(0) > 0) {
    state.counters["round_trips"] = seconds * 1000 / static_cast<double>(state.range(0));
    state.counters["exchanges"] = exchanges / static_cast<double>(state.iterations());
  }
  if (channel.unanswered > 0) state.SkipWithError("a command was unanswered");
}

// Arguments: milliseconds of a round trip, and whether the page's reads are announced. From the tab
// change to the last value on the page.
void ShowSetupPage(benchmark::State& state) {
  const CModelInfo2 model = MakeFullModel(kDialogType, kModelCode);
  const FarProjector projector(model, std::chrono::milliseconds(state.range(0)));
  const auto channel = ConnectTo(projector, state.range(1) != 0);
  PaintWatch watch;
  CAdvanceDlg dialog;
  dialog.CopyData(&model, 0);
  dialog.Projector().SetChannel(channel);
  dialog.Create();
  dialog.show();
  auto& tabs = *dialog.findChild<QTabBar*>();
  const auto pages = TabsOf(kDialogType, kModelCode);
  const auto setup = std::ranges::find(pages, PageId::SetupType5, &PageTab::page);
  const int setupTab = static_cast<int>(setup - pages.begin()) + 1;

  std::vector<double> waits;
  int exchanges = 0;
  for ([[maybe_unused]] auto iteration : state) {
    tabs.setCurrentIndex(0);
    watch.RunUntilPainted();
    channel->answered = 0;
    exchanges -= projector.Exchanges();
    const auto start = Clock::now();
    tabs.setCurrentIndex(setupTab);
    watch.RunUntilPainted();
    waits.push_back(SecondsSince(start));
    state.SetIterationTime(waits.back());
    exchanges += projector.Exchanges();
  }
  SetCounters(state, *channel, Median(waits), exchanges);
}

// Measures from nothing, without a connection, to the values of the first page. The counters start
// when the dialog connects.
void OpenOverLink(benchmark::State& state) {
  const CModelInfo2 model = MakeFullModel(kDialogType, kModelCode);
  const FarProjector projector(model, std::chrono::milliseconds(state.range(0)));
  PaintWatch watch;
  std::vector<double> waits;
  std::shared_ptr<Counting> channel;
  for ([[maybe_unused]] auto iteration : state) {
    channel = ConnectTo(projector, state.range(1) != 0);
    const auto start = Clock::now();
    CAdvanceDlg dialog;
    dialog.CopyData(&model, 0);
    dialog.Projector().SetChannel(channel);
    dialog.Create();
    dialog.show();
    watch.RunUntilPainted();
    state.SetIterationTime(SecondsSince(start));
    waits.push_back(SecondsSince(channel->start));
  }
  SetCounters(state, *channel, Median(waits), projector.Exchanges());
}

void NearAndFar(benchmark::internal::Benchmark* bench) {
  bench->ArgNames({"ms", "announced"})->ArgsProduct({{0, 20}, {0, 1}});
  bench->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
}

}  // namespace

BENCHMARK(ShowSetupPage)->Apply(NearAndFar);
BENCHMARK(OpenOverLink)->Apply(NearAndFar);
