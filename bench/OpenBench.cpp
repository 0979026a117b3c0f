#include <algorithm>
#include <functional>
#include <memory>
#include <numeric>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/BenchSupport.h"
#include "bench/PlainDialog.h"
#include "host/CAdvanceDlg.h"

namespace {

std::unique_ptr<CAdvanceDlg> OpenOurs(const CModelInfo2& model) {
  auto dialog = std::make_unique<CAdvanceDlg>();
  dialog->CopyData(&model, 0);
  dialog->Projector().SetChannel(std::make_shared<AnsweringChannel>());
  dialog->Create();
  dialog->resize(dialog->sizeHint());
  dialog->show();
  return dialog;
}

std::unique_ptr<QDialog> OpenPlain(const PlainBlueprint& blueprint, bool framed) {
  auto dialog = MakePlainDialog(blueprint, framed);
  dialog->show();
  return dialog;
}

/// Seconds from the start until the first page is painted; negative if it is not painted.
double TimeToOpen(PaintWatch& watch, auto open) {
  const auto start = Clock::now();
  const auto dialog = open();
  const bool painted = watch.RunUntilPainted();
  const double seconds = SecondsSince(start);
  dialog->hide();
  return painted ? seconds : -1;
}

/// The median of the ratios of pairs, because the machine may slow down between pairs.
double MedianRatio(const std::vector<double>& times, const std::vector<double>& others) {
  std::vector<double> ratios(times.size());
  std::ranges::transform(times, others, ratios.begin(), std::divides());
  return Median(std::move(ratios));
}

// The dialogs take turns, so that disturbances affect them equally.
void OpenDialog(benchmark::State& state) {
  const CModelInfo2 model =
      MakeFullModel(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  PaintWatch watch;
  auto sample = OpenOurs(model);
  watch.RunUntilPainted();
  const PlainBlueprint blueprint = BlueprintOf(*sample);
  const std::vector<qsizetype> counts = WidgetCounts(*sample);
  sample.reset();
  if (counts != WidgetCounts(*OpenPlain(blueprint, true))) {
    state.SkipWithError("the plain dialog is not made of the same widgets");
    return;
  }
  watch.RunUntilPainted();

  std::vector<double> ours;
  std::vector<double> plain;
  std::vector<double> unframed;
  const std::function<void()> openAll[] = {
      [&] { ours.push_back(TimeToOpen(watch, [&] { return OpenOurs(model); })); },
      [&] { plain.push_back(TimeToOpen(watch, [&] { return OpenPlain(blueprint, true); })); },
      [&] { unframed.push_back(TimeToOpen(watch, [&] { return OpenPlain(blueprint, false); })); },
  };
  for ([[maybe_unused]] auto iteration : state) {
    const std::size_t first = ours.size();
    for (std::size_t i = 0; i < std::size(openAll); ++i) {
      openAll[(first + i) % std::size(openAll)]();
    }
    if (std::min({ours.back(), plain.back(), unframed.back()}) < 0) {
      state.SkipWithError("a dialog was not painted");
      return;
    }
    state.SetIterationTime(ours.back());
  }
  state.counters["widgets"] =
      static_cast<double>(std::accumulate(counts.begin(), counts.end(), qsizetype{0}));
  state.counters["ours_ms"] = Median(ours) * 1e3;
  state.counters["plain_ms"] = Median(plain) * 1e3;
  state.counters["unframed_ms"] = Median(unframed) * 1e3;
  state.counters["ratio"] = MedianRatio(ours, plain);
  state.counters["ratio_unframed"] = MedianRatio(ours, unframed);
}

}  // namespace

BENCHMARK(OpenDialog)
    ->ArgNames({"type", "code"})
    ->Args({1, 1})
    ->Args({4, 22})
    ->Args({5, 30})
    ->Args({5, 42})
    ->Iterations(100)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
