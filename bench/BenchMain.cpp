#include <cstdio>

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
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
