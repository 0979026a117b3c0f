#include <cstdio>

#include <QApplication>
#include <QStyleFactory>
#include <benchmark/benchmark.h>

#include "i18n/Catalog.h"

namespace {

// The offscreen display says of every window that it has no size hints.
void DropDisplayRemarks(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains(QLatin1String("propagateSizeHints"))) return;
  std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

}  // namespace

int main(int argc, char** argv) {
  // The benchmarks bring their own display and language, whatever the caller has.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "en_US.UTF-8");
  if (LoadCatalog() != 0) return 1;
  qInstallMessageHandler(DropDisplayRemarks);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
