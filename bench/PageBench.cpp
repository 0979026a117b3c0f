#include <functional>
#include <memory>
#include <vector>

#include <QTabBar>
#include <benchmark/benchmark.h>

#include "bench/BenchSupport.h"
#include "device/channels/BoundedChannel.h"
#include "host/CAdvanceDlg.h"
#include "pages/common/CTabPage.h"

namespace {

constexpr int kPictureTab = 1;

/// A visible action on the open dialog.
struct PageAction {
  int firstTab;
  std::function<void(CAdvanceDlg&, QTabBar&)> act;
};

void Refresh(CAdvanceDlg& dialog, QTabBar&) { dialog.ShownPage()->InitDisp(); }

const PageAction kTabChange{0, [](CAdvanceDlg&, QTabBar& tabs) {
                              tabs.setCurrentIndex(kPictureTab - tabs.currentIndex());
                            }};
const PageAction kStatusRefresh{0, Refresh};
const PageAction kPictureRefresh{kPictureTab, Refresh};

// Arguments: milliseconds that the projector takes for a command, and whether the channel is
// bounded. Measured until the page is painted.
void RunPage(benchmark::State& state, const PageAction& action) {
  const std::chrono::milliseconds delay(state.range(0));
  const bool bounded = state.range(1) != 0;
  const auto projector = std::make_shared<AnsweringChannel>(delay);
  const CModelInfo2 model = MakeFullModel(5, 30);
  PaintWatch watch;
  CAdvanceDlg dialog;
  dialog.CopyData(&model, 0);
  if (bounded) {
    dialog.Projector().SetChannel(std::make_shared<BoundedChannel>(projector));
  } else {
    dialog.Projector().SetChannel(projector);
  }
  dialog.Create();
  dialog.show();
  auto& tabs = *dialog.findChild<QTabBar*>();
  // Shows every page once before, because the first time costs more.
  for (const int tab : {kPictureTab, 1 - kPictureTab, action.firstTab}) {
    tabs.setCurrentIndex(tab);
    watch.RunUntilPainted();
  }
  projector->TakeWork();

  std::vector<double> own;  // seconds for each read, without the projector's time
  std::vector<double> totals;
  std::vector<double> ratios;
  AnsweringChannel::Work work;
  for ([[maybe_unused]] auto iteration : state) {
    projector->NextRound();
    const auto start = Clock::now();
    action.act(dialog, tabs);
    const bool painted = watch.RunUntilPainted();
    const double total = SecondsSince(start);
    work = projector->TakeWork();
    if (!painted || work.commands == 0) {
      state.SkipWithError("the page was not read and painted");
      return;
    }
    state.SetIterationTime(total);
    own.push_back((total - work.seconds) / work.commands);
    totals.push_back(total);
    if (work.seconds > 0) ratios.push_back(total / work.seconds);
  }
  state.counters["reads"] = work.commands;
  state.counters["own_us_per_read"] = Median(own) * 1e6;
  if (ratios.empty()) return;
  // On a busy machine the projector wakes up late; the second ratio excludes that.
  const double nominal = work.commands * std::chrono::duration<double>(delay).count();
  state.counters["ratio"] = Median(totals) / nominal;
  state.counters["ratio_to_waited"] = Median(ratios);
}

void ChangeTab(benchmark::State& state) { RunPage(state, kTabChange); }
void RefreshStatus(benchmark::State& state) { RunPage(state, kStatusRefresh); }
void RefreshPicture(benchmark::State& state) { RunPage(state, kPictureRefresh); }

void AtOnceAndSlow(benchmark::internal::Benchmark* bench) {
  bench->ArgNames({"ms", "bounded"})->ArgsProduct({{0, 5}, {0, 1}});
  bench->Iterations(60)->UseManualTime()->Unit(benchmark::kMillisecond);
}

}  // namespace

BENCHMARK(ChangeTab)->Apply(AtOnceAndSlow);
BENCHMARK(RefreshStatus)->Apply(AtOnceAndSlow);
BENCHMARK(RefreshPicture)->Apply(AtOnceAndSlow);
