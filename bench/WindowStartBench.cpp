// How soon the main window of the host application is painted, and what memory it takes.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <optional>
#include <unistd.h>
#include <vector>

#include <QApplication>
#include <QDockWidget>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QProcess>
#include <QSplitter>
#include <QStatusBar>
#include <QStyleFactory>
#include <QTableWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <benchmark/benchmark.h>

#include "app/desktop/MainWindow.h"
#include "bench/DesktopProfiles.h"
#include "bench/WindowStart.h"

namespace {

using Clock = std::chrono::steady_clock;

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

constexpr const char* kBare = "bare";
constexpr const char* kPlain = "plain";

/// A window of the same kind in plain Qt: menus, tool bar and status bar, groups, a table with as
/// many rows and columns and texts at hand, details with buttons, and three closed docks.
void FillPlain(QMainWindow& window) {
  constexpr int kRows = 55;
  constexpr int kColumns = 9;
  for (const char* title : {"File", "Edit", "Projector", "View", "Help"}) {
    QMenu* menu = window.menuBar()->addMenu(QLatin1String(title));
    for (int i = 0; i < 8; ++i) menu->addAction(QStringLiteral("Entry %1").arg(i));
  }
  QToolBar* tools = window.addToolBar(QStringLiteral("Tools"));
  for (int i = 0; i < 8; ++i) tools->addAction(QStringLiteral("Action %1").arg(i));
  window.statusBar()->addPermanentWidget(new QLabel(QStringLiteral("55 on · 0 off")));
  auto* groups = new QListWidget;
  for (int i = 0; i < 12; ++i) groups->addItem(QStringLiteral("Group %1").arg(i));
  auto* table = new QTableWidget(kRows, kColumns);
  table->verticalHeader()->hide();
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kColumns; ++column)
      table->setItem(row, column, new QTableWidgetItem(QStringLiteral("Text %1").arg(row)));
  }
  auto* list = new QWidget;
  auto* listLayout = new QVBoxLayout(list);
  listLayout->addWidget(new QLineEdit);
  listLayout->addWidget(table);
  auto* details = new QWidget;
  auto* form = new QFormLayout(details);
  for (int i = 0; i < 9; ++i)
    form->addRow(QStringLiteral("Caption %1").arg(i), new QLabel(QStringLiteral("Value")));
  for (int i = 0; i < 7; ++i) form->addRow(new QToolButton);
  form->addRow(new QListWidget);
  auto* sides = new QSplitter;
  for (QWidget* side : {static_cast<QWidget*>(groups), list, details}) sides->addWidget(side);
  window.setCentralWidget(sides);
  for (int i = 0; i < 3; ++i) {
    auto* dock = new QDockWidget(QStringLiteral("Dock %1").arg(i));
    dock->setWidget(new QTableView);
    window.addDockWidget(Qt::BottomDockWidgetArea, dock);
    dock->hide();
  }
}

}  // namespace

void PaintWindow(int argc, char** argv) {
  const auto start = Clock::now();
  const QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  std::unique_ptr<QMainWindow> window;
  const QString kind = QString::fromLocal8Bit(argv[argc - 1]);
  if (kind == kBare || kind == kPlain) {
    window = std::make_unique<QMainWindow>();
    window->resize(1340, 760);
    if (kind == kPlain) FillPlain(*window);
  } else {
    window = std::make_unique<MainWindow>(LoadProfiles(kind));
  }
  const FirstPaint paint(*window);
  window->show();
  paint.Wait();
  std::printf("%f %f\n", SecondsSince(start), ResidentMiB());
  std::fflush(stdout);
  std::_Exit(EXIT_SUCCESS);
}

namespace {

struct Painted {
  double processSeconds = 0;  ///< From the start of the process to its end.
  double seconds = 0;         ///< From its main function to the first paint.
  double residentMiB = 0;
};

std::optional<Painted> RunPaint(const QString& kind) {
  const auto start = Clock::now();
  QProcess process;
  process.start(QCoreApplication::applicationFilePath(), {kPaintOption, kind});
  if (!process.waitForFinished(60'000) || process.exitCode() != 0) return {};
  Painted painted{.processSeconds = SecondsSince(start)};
  const QByteArrayList numbers = process.readAllStandardOutput().trimmed().split(' ');
  if (numbers.size() != 2) return {};
  painted.seconds = numbers[0].toDouble();
  painted.residentMiB = numbers[1].toDouble();
  return painted;
}

// Each in a process of its own, in turn; ours with the profiles that come with the program.
void StartWindow(benchmark::State& state) {
  std::vector<double> ours, plain, bare, ratios, bareRatios;
  for ([[maybe_unused]] auto iteration : state) {
    const auto one = RunPaint(QStringLiteral(BENCH_PROFILES));
    const auto other = RunPaint(QLatin1String(kPlain));
    const auto third = RunPaint(QLatin1String(kBare));
    if (!one || !other || !third) return state.SkipWithError("a window was not painted");
    ours.push_back(one->processSeconds * 1e3);
    plain.push_back(other->processSeconds * 1e3);
    bare.push_back(third->processSeconds * 1e3);
    ratios.push_back(one->processSeconds / other->processSeconds);
    bareRatios.push_back(one->processSeconds / third->processSeconds);
  }
  state.counters["ours_ms"] = Median(ours);
  state.counters["plain_ms"] = Median(plain);
  state.counters["bare_ms"] = Median(bare);
  state.counters["ratio"] = Median(ratios);
  state.counters["ratio_bare"] = Median(bareRatios);
}

void LoadTenThousand(benchmark::State& state) {
  const QTemporaryDir folder;
  const QString file = WriteProfiles(folder, kManyProjectors);
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

}  // namespace

BENCHMARK(StartWindow)->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadTenThousand)->Iterations(5)->Unit(benchmark::kMillisecond);
