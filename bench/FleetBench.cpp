// What it costs to ask many projectors how they are: the fleet, and beside it the least that any
// program can do, a loop that sends the same bytes and looks at nothing.

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <string>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <QCoreApplication>
#include <benchmark/benchmark.h>

#include "bench/FleetMeasures.h"
#include "bench/FleetServer.h"
#include "device/CommandCode.h"
#include "device/Connect.h"
#include "device/protocol/WireFrame.h"

namespace {

using Protocol = FleetServer::Protocol;

FleetTarget TargetOf(Protocol protocol, std::uint16_t port) {
  const std::string host = "127.0.0.1";
  if (protocol == Protocol::Wire) return {std::to_string(port), TcpAddress{host, port}};
  return {std::to_string(port), PjLinkAddress{.host = host, .port = port, .password = {}}};
}

/// What the fleet sends to a projector that it knows, each after the answer to the one before.
std::vector<std::string> RequestsOf(Protocol protocol) {
  if (protocol == Protocol::PjLink) {
    return {"%1POWR ?\r", "%2INPT ?\r", "%1ERST ?\r", "%1AVMT ?\r",
            "%2FREZ ?\r", "%1LAMP ?\r", "%2FILT ?\r"};
  }
  std::string first;
  std::string rest;
  std::uint16_t sequence = 0;
  Wire::Append(first, {.sequence = ++sequence, .message = Wire::Hello{}});
  for (const std::uint16_t code :
       {CommandCode::RunningState, CommandCode::InputSource, CommandCode::ErrorStatus,
        CommandCode::BlankState, CommandCode::Mute, CommandCode::Freeze, CommandCode::LampTime,
        CommandCode::FilterTime}) {
    Wire::Append(code == CommandCode::RunningState ? first : rest,
                 {.sequence = ++sequence, .message = Wire::MakeRequest({PjtOperation::Get, code})});
  }
  return {first, rest};
}

/// Asks every projector once, with so many connections at a time.
void BareSweep(const std::vector<std::uint16_t>& ports, Protocol protocol, std::size_t atOnce) {
  const std::vector<std::string> requests = RequestsOf(protocol);
  const bool greets = protocol == Protocol::PjLink;
  const int epoll = epoll_create1(EPOLL_CLOEXEC);
  std::vector<std::size_t> next(20'000);
  std::size_t begun = 0;
  std::size_t ended = 0;
  const auto begin = [&] {
    const int file = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    const int on = 1;
    setsockopt(file, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(ports[begun++]);
    connect(file, reinterpret_cast<sockaddr*>(&address), sizeof address);
    next[static_cast<std::size_t>(file)] = 0;
    epoll_event event{.events = (greets ? EPOLLIN : EPOLLIN | EPOLLOUT) | EPOLLET,
                      .data = {.fd = file}};
    epoll_ctl(epoll, EPOLL_CTL_ADD, file, &event);
  };
  std::array<epoll_event, 64> events{};
  std::array<char, 4096> buffer{};
  while (ended < ports.size()) {
    while (begun < ports.size() && begun - ended < atOnce) begin();
    const int count = epoll_wait(epoll, events.data(), static_cast<int>(events.size()), -1);
    for (int i = 0; i < count; ++i) {
      const int file = events.at(static_cast<std::size_t>(i)).data.fd;
      std::size_t& request = next[static_cast<std::size_t>(file)];
      const auto size = recv(file, buffer.data(), buffer.size(), 0);
      if (size <= 0 && (greets || request > 0)) continue;
      if (request == requests.size()) {
        close(file);
        ++ended;
        continue;
      }
      const std::string& bytes = requests[request++];
      send(file, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    }
  }
  close(epoll);
}

// Arguments: the protocol, how many projectors, and 20 where each twentieth is silent, or 0. A
// sweep asks each of them once; the first one, which also learns what does not change, is not
// counted.
void FleetSweep(benchmark::State& state) {
  const auto protocol = static_cast<Protocol>(state.range(0));
  const auto count = static_cast<std::uint64_t>(state.range(1));
  const auto silentOne = static_cast<int>(state.range(2));
  const FleetServer server(protocol, static_cast<int>(count), silentOne);
  FleetPolicy policy;
  policy.interval = std::chrono::hours(1);
  policy.longestPause = std::chrono::hours(1);
  policy.soonest = std::chrono::milliseconds(0);
  Fleet fleet(policy);
  for (const std::uint16_t port : server.Ports()) fleet.Set(TargetOf(protocol, port));
  std::uint64_t visits = count;
  AwaitVisits(fleet, visits);
  double cpu = 0;
  double time = 0;
  double bareCpu = 0;
  double bareTime = 0;
  const double firstMemory = StatusOf("self", "VmRSS:");
  for ([[maybe_unused]] auto iteration : state) {
    double cpuBefore = CpuSeconds();
    auto start = Clock::now();
    for (const std::uint16_t port : server.Ports()) fleet.AskSoon(std::to_string(port));
    visits += count;
    AwaitVisits(fleet, visits);
    const double seconds = SecondsSince(start);
    state.SetIterationTime(seconds);
    time += seconds;
    cpu += CpuSeconds() - cpuBefore;
    if (silentOne > 0) continue;
    cpuBefore = CpuSeconds();
    start = Clock::now();
    BareSweep(server.Ports(), protocol, policy.visitsAtOnce);
    bareTime += SecondsSince(start);
    bareCpu += CpuSeconds() - cpuBefore;
  }
  const auto sweeps = static_cast<double>(state.iterations());
  const double asked = sweeps * static_cast<double>(count);
  const std::uint64_t silent = silentOne > 0 ? visits / static_cast<unsigned>(silentOne) : 0;
  if (fleet.Tally().unanswered != silent) state.SkipWithError("another number is silent");
  state.counters["cpu_ms_each"] = 1000 * cpu / asked;
  state.counters["MB"] = StatusOf("self", "VmRSS:") / 1024;
  state.counters["MB_grown"] = (StatusOf("self", "VmRSS:") - firstMemory) / 1024;
  state.counters["threads"] = StatusOf("self", "Threads:");
  if (silentOne > 0) return;
  state.counters["bare_cpu_ms_each"] = 1000 * bareCpu / asked;
  state.counters["ratio"] = time / bareTime;
  state.counters["cpu_ratio"] = cpu / bareCpu;
}
BENCHMARK(FleetSweep)
    ->ArgsProduct({{static_cast<int>(Protocol::PjLink), static_cast<int>(Protocol::Wire)},
                   {10, 100, 1'000, 10'000},
                   {0}})
    ->Args({static_cast<int>(Protocol::PjLink), 10'000, 20})
    ->Args({static_cast<int>(Protocol::Wire), 10'000, 20})
    ->ArgNames({"wire", "projectors", "silent"})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// Whether memory grows in a hundred sweeps. Arguments: the protocol, and how many projectors.
void ManySweeps(benchmark::State& state) {
  constexpr int kSweeps = 100;
  constexpr int kFirst = 10;
  constexpr double kMostGrown = 1024;  // kB
  const auto protocol = static_cast<Protocol>(state.range(0));
  const auto count = static_cast<std::uint64_t>(state.range(1));
  const FleetServer server(protocol, static_cast<int>(count), 20);
  for ([[maybe_unused]] auto iteration : state) {
    Fleet fleet({.interval = std::chrono::milliseconds(0),
                 .jitter = 0,
                 .longestPause = std::chrono::milliseconds(0),
                 .connect = std::chrono::milliseconds(50),
                 .answer = std::chrono::milliseconds(50)});
    for (const std::uint16_t port : server.Ports()) fleet.Set(TargetOf(protocol, port));
    AwaitVisits(fleet, kFirst * count);
    const double before = StatusOf("self", "VmRSS:");
    const auto start = Clock::now();
    while (fleet.Tally().answered < kSweeps * count) {
      fleet.TakeChanges();
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    state.SetIterationTime(SecondsSince(start));
    const double grown = StatusOf("self", "VmRSS:") - before;
    state.counters["MB_grown"] = grown / 1024;
    if (grown > kMostGrown) state.SkipWithError("memory grows");
  }
}
BENCHMARK(ManySweeps)
    ->Args({static_cast<int>(Protocol::PjLink), 1'000})
    ->Args({static_cast<int>(Protocol::Wire), 1'000})
    ->ArgNames({"wire", "projectors"})
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// How long the end takes in the middle of a sweep. Argument: how many projectors.
void EndFleet(benchmark::State& state) {
  const FleetServer server(Protocol::PjLink, static_cast<int>(state.range(0)), 0);
  for ([[maybe_unused]] auto iteration : state) {
    auto fleet = std::make_unique<Fleet>();
    for (const std::uint16_t port : server.Ports()) fleet->Set(TargetOf(Protocol::PjLink, port));
    AwaitVisits(*fleet, static_cast<std::uint64_t>(state.range(0)) / 4);
    const auto start = Clock::now();
    fleet.reset();
    state.SetIterationTime(SecondsSince(start));
  }
}
BENCHMARK(EndFleet)->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);

// How long an event loop is busy with changes, of which 1,250 a second come while the fleet sweeps.
// Argument: how many projectors.
void TakeChanges(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  const FleetServer server(Protocol::PjLink, count, 0);
  int arguments = 0;
  QCoreApplication application(arguments, nullptr);
  FleetPolicy policy;
  policy.interval = std::chrono::milliseconds(500);
  double longest = 0;
  std::size_t taken = 0;
  for ([[maybe_unused]] auto iteration : state) {
    std::unique_ptr<Fleet> fleet;
    const auto take = [&] {
      const auto start = Clock::now();
      taken += fleet->TakeChanges().changes.size();
      longest = std::max(longest, SecondsSince(start));
    };
    fleet = std::make_unique<Fleet>(
        policy, [&] { QMetaObject::invokeMethod(&application, take, Qt::QueuedConnection); });
    for (const std::uint16_t port : server.Ports()) fleet->Set(TargetOf(Protocol::PjLink, port));
    AwaitVisits(*fleet, static_cast<std::uint64_t>(count));
    while (!fleet->TakeChanges().changes.empty()) continue;
    taken = 0;
    longest = 0;
    std::thread changing([&] {
      // Those that a busy machine delayed come together.
      auto due = Clock::now();
      for (int i = 0; i < 3000; ++i) {
        const auto port = server.Ports()[static_cast<std::size_t>(i % count)];
        fleet->LearnDrift(std::to_string(port), i);
        std::this_thread::sleep_until(due += std::chrono::microseconds(800));
      }
      QMetaObject::invokeMethod(&application, &QCoreApplication::quit, Qt::QueuedConnection);
    });
    const auto start = Clock::now();
    QCoreApplication::exec();
    state.SetIterationTime(SecondsSince(start));
    state.counters["changes_per_s"] = static_cast<double>(taken) / SecondsSince(start);
    changing.join();
    fleet.reset();
    QCoreApplication::processEvents();
  }
  state.counters["longest_ms"] = 1000 * longest;
}
BENCHMARK(TakeChanges)->Arg(1'000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
