// A fleet and the simulator program, which serves all its projectors, on the same processors. They
// differ: some are in standby, some are of class 1, each has its own state.

#include <QHostAddress>
#include <QProcess>
#include <QRegularExpression>
#include <benchmark/benchmark.h>

#include "bench/FleetMeasures.h"

namespace {

constexpr std::uint32_t kFirstAddress = 0x7F400001;  // 127.64.0.1

std::string AddressText(std::uint32_t address) {
  return QHostAddress(address).toString().toStdString();
}

/// The program, until the end.
class Simulator {
 public:
  Simulator(int projectors, int silentPercent) {
    QStringList arguments{"--fleet", QString::number(projectors)};
    if (silentPercent > 0) {
      arguments += {"--fault", QStringLiteral("silent %1%").arg(silentPercent)};
    }
    program_.start(QStringLiteral(BENCH_SIMULATOR), arguments);
    QByteArray said;
    while (!said.contains("ready") && program_.waitForReadyRead(60'000)) {
      said += program_.readAllStandardOutput();
    }
    said_ = QString::fromUtf8(said);
  }
  ~Simulator() {
    program_.kill();
    program_.waitForFinished();
  }

  std::uint16_t Port(const QString& way) const {
    const QRegularExpression address(way + QStringLiteral("://[^:]*:([0-9]+)"));
    return address.match(said_).captured(1).toUShort();
  }
  double Megabytes() const {
    return StatusOf(std::to_string(program_.processId()), "VmRSS:") / 1024;
  }

 private:
  QProcess program_;
  QString said_;
};

// Arguments: PJLink or the wire, how many projectors, and the share of silent ones in percent. Each
// of two sweeps begins when the one before has ended; the first one also learns what does not
// change.
void SweepSimulated(benchmark::State& state) {
  const bool isWire = state.range(0) != 0;
  const auto count = static_cast<std::uint32_t>(state.range(1));
  const Simulator simulator(static_cast<int>(count), static_cast<int>(state.range(2)));
  const std::uint16_t port =
      simulator.Port(isWire ? QStringLiteral("tcp") : QStringLiteral("pjlink"));
  if (port == 0) return state.SkipWithError("the simulator does not start");
  FleetPolicy policy;
  policy.interval = std::chrono::hours(1);
  policy.longestPause = std::chrono::hours(1);
  policy.soonest = std::chrono::milliseconds(0);
  for ([[maybe_unused]] auto iteration : state) {
    Fleet fleet(policy);
    const auto first = Clock::now();
    for (std::uint32_t i = 0; i < count; ++i) {
      const std::string host = AddressText(kFirstAddress + i);
      ProjectorAddress address = TcpAddress{host, port};
      if (!isWire) address = PjLinkAddress{.host = host, .port = port, .password = {}};
      fleet.Set({host, address});
    }
    AwaitVisits(fleet, count);
    state.counters["first_s"] = SecondsSince(first);
    const double cpu = CpuSeconds();
    const auto start = Clock::now();
    for (std::uint32_t i = 0; i < count; ++i) fleet.AskSoon(AddressText(kFirstAddress + i));
    AwaitVisits(fleet, 2 * count);
    state.SetIterationTime(SecondsSince(start));
    state.counters["cpu_ms_each"] = 1000 * (CpuSeconds() - cpu) / count;
    state.counters["unanswered"] = static_cast<double>(fleet.Tally().unanswered) / 2;
    state.counters["MB"] = StatusOf("self", "VmRSS:") / 1024;
    state.counters["simulator_MB"] = simulator.Megabytes();
  }
}
BENCHMARK(SweepSimulated)
    ->ArgsProduct({{0, 1}, {10, 100, 1'000, 10'000}, {0}})
    ->Args({0, 10'000, 5})
    ->Args({1, 10'000, 5})
    ->ArgNames({"wire", "projectors", "silent%"})
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
