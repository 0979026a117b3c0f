// How long the event loop of the host application stands still with ten thousand projectors in the
// list.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <thread>
#include <vector>

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <benchmark/benchmark.h>

#include "app/desktop/LiveProjectors.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/groups/GroupList.h"
#include "app/desktop/projectors/ProjectorView.h"
#include "bench/DesktopProfiles.h"
#include "bench/WindowStart.h"
#include "device/CommandCode.h"
#include "i18n/Catalog.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kChangesPerSecond = 1000;

double ThreadSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Measures the longest turn of the event loop: by the clock, and by the processor time of the
/// thread, which other work on the machine lengthens less.
class Heartbeat {
 public:
  Heartbeat() {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.callOnTimeout([this] { Beat(); });
    timer_.start(1);
    QApplication::processEvents();
    Beat();
    longest_ = longestWork_ = 0;
  }
  void Beat() {
    const auto now = Clock::now();
    const double work = ThreadSeconds();
    longest_ = std::max(longest_, std::chrono::duration<double>(now - last_).count());
    longestWork_ = std::max(longestWork_, work - lastWork_);
    last_ = now;
    lastWork_ = work;
  }
  void Report(benchmark::State& state) const {
    state.counters["longest_ms"] = longest_ * 1e3;
    state.counters["longest_work_ms"] = longestWork_ * 1e3;
  }

 private:
  QTimer timer_;
  Clock::time_point last_ = Clock::now();
  double lastWork_ = ThreadSeconds();
  double longest_ = 0;
  double longestWork_ = 0;
};

/// Runs the event loop.
void Spend(Clock::duration time) {
  QEventLoop loop;
  QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(time), &loop,
                     &QEventLoop::quit);
  loop.exec();
}

/// A window with ten thousand projectors, of which a part is known; none is asked.
class FullWindow {
 public:
  FullWindow() : window_(LoadProfiles(WriteProfiles(folder_, kManyProjectors))) {
    window_.show();
    Spend(10ms);
    Projectors().SetAsking(false);
    for (const ProjectorRow& row : View().Model().All()) ids_.push_back(row.id);
    for (std::size_t i = 0; i < ids_.size(); ++i) Change(i);
    Spend(3s);
  }

  ProjectorView& View() const { return *window_.findChild<ProjectorView*>(); }
  QTableView& Table() const { return *View().findChild<QTableView*>(); }
  GroupList& Groups() const { return *window_.findChild<GroupList*>(); }

  /// Something else is known of the projector at this place from now on.
  void Change(std::size_t place) {
    const auto round = static_cast<int>(++round_);
    const auto& id = ids_[place % ids_.size()];
    const auto learn = [&](std::uint16_t code, int value) {
      Projectors().Learn(id, {PjtOperation::Get, code},
                         {.result = 1, .value = static_cast<std::int16_t>(value)});
    };
    learn(CommandCode::RunningState, round % 3 == 0 ? 0 : 1);
    learn(CommandCode::LampTime, round * 31 % 4000);
    Projectors().LearnDrift(id, round % 5);
  }

 private:
  Fleet& Projectors() const { return window_.findChild<LiveProjectors*>()->Watch().Projectors(); }

  const QTemporaryDir folder_;
  MainWindow window_;
  std::vector<std::string> ids_;
  std::atomic<unsigned> round_ = 0;
};

std::unique_ptr<FullWindow> fullWindow;

FullWindow& Full() {
  if (!fullWindow) fullWindow = std::make_unique<FullWindow>();
  return *fullWindow;
}

void SortByColumn(benchmark::State& state) {
  QTableView& table = Full().Table();
  const auto column = static_cast<int>(state.range(0));
  state.SetLabel(ProjectorColumns::Title(column).toStdString());
  Heartbeat heartbeat;
  for ([[maybe_unused]] auto iteration : state) {
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
      table.sortByColumn(column, order);
      Spend(50ms);
    }
  }
  heartbeat.Report(state);
  table.sortByColumn(-1, Qt::AscendingOrder);
}

void Search(benchmark::State& state) {
  auto* search = Full().View().findChild<QLineEdit*>();
  Heartbeat heartbeat;
  for ([[maybe_unused]] auto iteration : state) {
    for (const char* text : {"r", "ro", "room", "room 1", "room 12", "iris", "building 7", ""}) {
      search->setText(QLatin1String(text));
      Spend(50ms);
    }
  }
  heartbeat.Report(state);
}

void ChooseGroups(benchmark::State& state) {
  GroupList& groups = Full().Groups();
  Heartbeat heartbeat;
  for ([[maybe_unused]] auto iteration : state) {
    for (int row = 0; row < groups.count(); ++row) {
      groups.setCurrentRow(row);
      Spend(50ms);
    }
  }
  groups.setCurrentRow(0);
  heartbeat.Report(state);
}

void ScrollThrough(benchmark::State& state) {
  QScrollBar& bar = *Full().Table().verticalScrollBar();
  Heartbeat heartbeat;
  for ([[maybe_unused]] auto iteration : state) {
    for (int value = bar.minimum(); value < bar.maximum(); value += bar.pageStep() * 2) {
      bar.setValue(value);
      Spend(1ms);
    }
  }
  heartbeat.Report(state);
}

void SelectAll(benchmark::State& state) {
  QTableView& table = Full().Table();
  Heartbeat heartbeat;
  for ([[maybe_unused]] auto iteration : state) {
    table.selectAll();
    Spend(1500ms);
    table.selectRow(3);
    Spend(50ms);
  }
  heartbeat.Report(state);
}

// Sorted by a column that the changes concern, or by the name.
void TakeChanges(benchmark::State& state) {
  FullWindow& full = Full();
  const auto column = static_cast<int>(state.range(0));
  state.SetLabel(ProjectorColumns::Title(column).toStdString());
  full.Table().sortByColumn(column, Qt::AscendingOrder);
  Spend(100ms);
  Heartbeat heartbeat;
  for ([[maybe_unused]] auto iteration : state) {
    std::atomic<bool> ends = false;
    std::thread changing([&] {
      const auto start = Clock::now();
      for (std::size_t i = 0; !ends; ++i) {
        full.Change(i * 7919);
        std::this_thread::sleep_until(start + (i + 1) * 1s / kChangesPerSecond);
      }
    });
    Spend(5s);
    ends = true;
    changing.join();
  }
  heartbeat.Report(state);
  full.Table().sortByColumn(-1, Qt::AscendingOrder);
}

}  // namespace

BENCHMARK(SortByColumn)
    ->DenseRange(0, ProjectorColumns::ColumnCount - 1)
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Search)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(ChooseGroups)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(ScrollThrough)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(SelectAll)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(TakeChanges)
    ->Arg(ProjectorColumns::Name)
    ->Arg(ProjectorColumns::State)
    ->Arg(ProjectorColumns::Lamp)
    ->Arg(ProjectorColumns::Answered)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
  // The benchmarks set their own display and language, independent of the caller's.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "en_US.UTF-8");
  if (LoadCatalog() != 0) return EXIT_FAILURE;
  if (argc > 1 && qstrcmp(argv[1], kPaintOption) == 0) PaintWindow(argc, argv);
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  benchmark::RunSpecifiedBenchmarks();
  fullWindow.reset();
  benchmark::Shutdown();
  return EXIT_SUCCESS;
}
