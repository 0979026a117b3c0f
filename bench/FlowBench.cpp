#include <algorithm>
#include <atomic>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include <QApplication>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <benchmark/benchmark.h>

#include "bench/BenchSupport.h"
#include "device/channels/BoundedChannel.h"
#include "host/CAdvanceDlg.h"
#include "pages/common/CTabPage.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kPace = 200ms;
constexpr auto kBriskPace = 4ms;
constexpr auto kTimeOut = 500ms;
constexpr int kCloseId = 1;

enum Projector { Slow, Silent, DropsOut, Late, Brisk };

/// A projector that is slow, never answers, answers only three commands, answers after the
/// time-out, or answers with a short delay.
class DifficultProjector final : public ProjectorChannel {
 public:
  explicit DifficultProjector(int kind) : kind_(kind) {}

  PjtReply Execute(const PjtCommand& command) override {
    if (kind_ == Brisk) {
      std::this_thread::sleep_for(kBriskPace);
      return {.result = AcceptedResult(command.operation), .value = 128};
    }
    const bool answers = kind_ == Slow || (kind_ == DropsOut && ++commands_ <= 3);
    std::this_thread::sleep_for(answers ? kPace : kTimeOut + 100ms);
    return {.result = AcceptedResult(command.operation), .value = 128, .answered = kind_ != Silent};
  }

 private:
  const int kind_;
  std::atomic<int> commands_ = 0;
};

/// Measures the longest time between two turns of the event loop.
class Heartbeat {
 public:
  Heartbeat() {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.callOnTimeout([this] {
      if (last_) longest_ = std::max(longest_, SecondsSince(*last_));
      last_ = Clock::now();
    });
    timer_.start(1);
  }
  double Longest() const { return longest_; }

 private:
  QTimer timer_;
  std::optional<Clock::time_point> last_;
  double longest_ = 0;
};

/// Records when the window was first painted.
class FirstPaint final : public QObject {
 public:
  explicit FirstPaint(QWidget& window) { window.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint && !painted) painted = Clock::now();
    return false;
  }
  std::optional<Clock::time_point> painted;
};

double Worst(const std::vector<double>& values) { return *std::ranges::max_element(values) * 1e3; }

// Runs the dialog, changes its tab and closes it, at moments that vary over the reading.
void DifficultRun(benchmark::State& state) {
  const CModelInfo2 model = MakeFullModel(5, 30);
  std::vector<double> painted;
  std::vector<double> tab;
  std::vector<double> close;
  std::vector<double> stretches;
  int moment = 30;
  for ([[maybe_unused]] auto iteration : state) {
    moment = (moment + 170) % 900;
    CAdvanceDlg dialog;
    dialog.CopyData(&model, 0);
    dialog.Projector().SetChannel(std::make_shared<BoundedChannel>(
        std::make_shared<DifficultProjector>(static_cast<int>(state.range(0))),
        BoundedChannel::Limits{.timeOut = kTimeOut}));
    FirstPaint paint(dialog);
    Clock::time_point closing;
    QTimer::singleShot(100 + moment, [&] {
      auto& tabs = *dialog.findChild<QTabBar*>();
      const auto start = Clock::now();
      FirstPaint page(dialog.Page(PageId::PictureType5));
      QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
      QEventLoop turn;
      while (!page.painted && SecondsSince(start) < 1) turn.processEvents();
      tab.push_back(SecondsSince(start));
    });
    QTimer::singleShot(1500 + moment, [&] {
      closing = Clock::now();
      if (close.size() % 2 == 0) {
        QTest::mouseClick(dialog.GetDlgItem(kCloseId), Qt::LeftButton);
      } else {
        QTest::keyClick(&dialog, Qt::Key_Escape);
      }
    });
    const Heartbeat heartbeat;
    const auto start = Clock::now();
    dialog.DoModal();
    close.push_back(SecondsSince(closing));
    if (!paint.painted) {
      state.SkipWithError("the dialog was not painted");
      return;
    }
    painted.push_back(std::chrono::duration<double>(*paint.painted - start).count());
    stretches.push_back(heartbeat.Longest());
  }
  state.counters["painted_ms"] = Worst(painted);
  state.counters["tab_ms"] = Worst(tab);
  state.counters["close_ms"] = Worst(close);
  state.counters["stretch_ms"] = Worst(stretches);
  state.counters["median_stretch_ms"] = Median(stretches) * 1e3;
}

}  // namespace

BENCHMARK(DifficultRun)
    ->ArgName("projector")
    ->DenseRange(Slow, Brisk)
    ->Iterations(6)
    ->Unit(benchmark::kMillisecond);
