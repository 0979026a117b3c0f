#include <fstream>
#include <memory>
#include <unistd.h>

#include <benchmark/benchmark.h>

#include "bench/BenchSupport.h"
#include "host/CAdvanceDlg.h"

namespace {

constexpr int kWarmCycles = 100;
constexpr int kCycles = 1000;

/// Resident memory of this process in KiB.
double ResidentKiB() {
  std::ifstream statm("/proc/self/statm");
  long size = 0;
  long resident = 0;
  statm >> size >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

void OpenAndClose(const CModelInfo2& model, PaintWatch& watch) {
  CAdvanceDlg dialog;
  dialog.CopyData(&model, 0);
  dialog.Projector().SetChannel(std::make_shared<AnsweringChannel>());
  dialog.Create();
  dialog.show();
  watch.RunUntilPainted();
  dialog.done(QDialog::Accepted);
}

void OpenCloseCycles(benchmark::State& state) {
  const CModelInfo2 model = MakeFullModel(5, 30);
  PaintWatch watch;
  for ([[maybe_unused]] auto iteration : state) {
    const double before = ResidentKiB();
    for (int i = 0; i < kWarmCycles; ++i) OpenAndClose(model, watch);
    const double warm = ResidentKiB();
    for (int i = kWarmCycles; i < kCycles; ++i) OpenAndClose(model, watch);
    const double after = ResidentKiB();
    state.counters["before_MiB"] = before / 1024;
    state.counters["warm_MiB"] = warm / 1024;
    state.counters["after_MiB"] = after / 1024;
    state.counters["bytes_per_cycle"] = (after - warm) * 1024 / (kCycles - kWarmCycles);
  }
}

}  // namespace

BENCHMARK(OpenCloseCycles)->Iterations(1)->Unit(benchmark::kMillisecond);
