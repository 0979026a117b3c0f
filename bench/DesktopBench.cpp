// The host application's window: how soon it is painted, and how long its event loop stands still
// with ten thousand projectors in the list.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <memory>
#include <optional>
#include <thread>
#include <unistd.h>
#include <vector>

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMainWindow>
#include <QProcess>
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
#include "device/CommandCode.h"
#include "i18n/Catalog.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kMany = 10'000;
constexpr int kTags = 20;
constexpr int kChangesPerSecond = 1000;
constexpr const char* kPaintOption = "--paint";

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

double ResidentMiB() {
  std::ifstream statm("/proc/self/statm");
  long size = 0;
  long resident = 0;
  statm >> size >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

/// Profiles of rooms at addresses where nothing answers.
QByteArray Profiles(int count) {
  QByteArray text =
      "{\"families\": {\"M\": {\"model\": \"QD-M7450\", \"dialogType\": 5, \"modelCode\": 30, "
      "\"link\": \"pjlink\", \"ratedLampHours\": 3000}},\n\"projectors\": [";
  for (int i = 0; i < count; ++i) {
    if (i > 0) text += ',';
    text += QStringLiteral(
                "\n{\"name\": \"Room %1\", \"like\": \"M\", \"tags\": [\"Building %2\"], "
                "\"connection\": {\"network\": {\"address\": \"127.1.%3.%4\", \"port\": 1}}}")
                .arg(i * 7919 % count)
                .arg(i % kTags)
                .arg(i / 250)
                .arg(i % 250 + 1)
                .toUtf8();
  }
  return text + "\n]}\n";
}

QString WriteProfiles(const QTemporaryDir& folder, int count) {
  QFile file(folder.filePath("profiles.json"));
  if (!file.open(QIODevice::WriteOnly)) std::abort();
  file.write(Profiles(count));
  return file.fileName();
}

ProfileDocument Load(const QString& fileName) {
  ProfileDocument document;
  if (const QString error = document.Load(fileName); !error.isEmpty()) {
    std::fprintf(stderr, "%s\n", qPrintable(error));
    std::abort();
  }
  return document;
}

class FirstPaint final : public QObject {
 public:
  explicit FirstPaint(QWidget& window) { window.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    isPainted_ = isPainted_ || event->type() == QEvent::Paint;
    return false;
  }
  void Wait() const {
    while (!isPainted_) QApplication::processEvents();
  }

 private:
  bool isPainted_ = false;
};

/// The measured process: shows a window, and says how many seconds after its start that was painted
/// and how much memory the process then had. Without a file the window is a bare one.
int PaintWindow(int argc, char** argv) {
  const auto start = Clock::now();
  const QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  std::unique_ptr<QMainWindow> window;
  if (argc > 2) {
    window = std::make_unique<MainWindow>(Load(QString::fromLocal8Bit(argv[2])));
  } else {
    window = std::make_unique<QMainWindow>();
    window->resize(1340, 760);
  }
  const FirstPaint paint(*window);
  window->show();
  paint.Wait();
  std::printf("%f %f\n", SecondsSince(start), ResidentMiB());
  std::fflush(stdout);
  std::_Exit(EXIT_SUCCESS);
}

struct Painted {
  double processSeconds = 0;  ///< From the start of the process to its end.
  double seconds = 0;         ///< From its main function to the first paint.
  double residentMiB = 0;
};

std::optional<Painted> RunPaint(const QString& file) {
  QStringList arguments{kPaintOption};
  if (!file.isEmpty()) arguments += file;
  const auto start = Clock::now();
  QProcess process;
  process.start(QCoreApplication::applicationFilePath(), arguments);
  if (!process.waitForFinished(60'000) || process.exitCode() != 0) return {};
  Painted painted{.processSeconds = SecondsSince(start)};
  const QByteArrayList numbers = process.readAllStandardOutput().trimmed().split(' ');
  if (numbers.size() != 2) return {};
  painted.seconds = numbers[0].toDouble();
  painted.residentMiB = numbers[1].toDouble();
  return painted;
}

// Both in a process of their own, in turn, with the profiles that come with the program.
void StartWindow(benchmark::State& state) {
  std::vector<double> ours, bare, ratios;
  for ([[maybe_unused]] auto iteration : state) {
    const auto one = RunPaint(QStringLiteral(BENCH_PROFILES));
    const auto other = RunPaint({});
    if (!one || !other) return state.SkipWithError("a window was not painted");
    ours.push_back(one->processSeconds * 1e3);
    bare.push_back(other->processSeconds * 1e3);
    ratios.push_back(one->processSeconds / other->processSeconds);
  }
  state.counters["ours_ms"] = Median(ours);
  state.counters["bare_ms"] = Median(bare);
  state.counters["ratio"] = Median(ratios);
}

void LoadTenThousand(benchmark::State& state) {
  const QTemporaryDir folder;
  const QString file = WriteProfiles(folder, kMany);
  std::vector<double> seconds, memory;
  for ([[maybe_unused]] auto iteration : state) {
    const auto painted = RunPaint(file);
    if (!painted) return state.SkipWithError("the window was not painted");
    seconds.push_back(painted->seconds);
    memory.push_back(painted->residentMiB);
  }
  state.counters["painted_s"] = Median(seconds);
  state.counters["resident_MiB"] = Median(memory);
}

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
  FullWindow() : window_(Load(WriteProfiles(folder_, kMany))) {
    Projectors().SetAsking(false);
    window_.show();
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

BENCHMARK(StartWindow)->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadTenThousand)->Iterations(5)->Unit(benchmark::kMillisecond);
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
  if (argc > 1 && qstrcmp(argv[1], kPaintOption) == 0) return PaintWindow(argc, argv);
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
