#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include <QApplication>
#include <QStyleFactory>
#include <benchmark/benchmark.h>

#include "i18n/Catalog.h"

namespace {

// The offscreen display warns about every window that it does not support size hints.
void DropDisplayRemarks(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains(QLatin1String("propagateSizeHints"))) return;
  std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

/// Shows what the options ask for, and remembers whether a benchmark has failed.
class WatchingReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& context) override { return shown_->ReportContext(context); }
  void ReportRuns(const std::vector<Run>& runs) override {
    hasFailed_ = hasFailed_ || std::ranges::any_of(runs, &Run::error_occurred);
    shown_->ReportRuns(runs);
  }
  void Finalize() override { shown_->Finalize(); }
  bool HasFailed() const { return hasFailed_; }

 private:
  const std::unique_ptr<BenchmarkReporter> shown_{benchmark::CreateDefaultDisplayReporter()};
  bool hasFailed_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  // The benchmarks set their own display and language, independent of the caller's.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "en_US.UTF-8");
  if (LoadCatalog() != 0) return 1;
  qInstallMessageHandler(DropDisplayRemarks);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  WatchingReporter reporter;
  const auto count = benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  return count > 0 && !reporter.HasFailed() ? 0 : 1;
}
