// A dialog on a simulated projector that an assistive technology may use: BusHost TYPE CODE. Writes
// every command, and a line "-" for each line that it reads.

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unistd.h>

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>

#include "device/LoggingChannel.h"
#include "device/ModelDataIntake.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/DialogDriver.h"

namespace {

void Tell(const std::string& line) {
  std::puts(line.c_str());
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (argc != 3) return EXIT_FAILURE;
  const CModelInfo2 model = FullModel(std::atoi(argv[1]), std::atoi(argv[2]));

  CAdvanceDlg dialog;
  dialog.CopyData(&model, 0);
  dialog.Projector().SetChannel(std::make_shared<LoggingChannel>(
      std::make_shared<SimulatedProjector>(DescribeModel(MakeModelData(model))),
      [](const PjtCommand& command, const PjtReply&, auto) { Tell(FormatCommand(command)); }));
  if (!dialog.Create()) return EXIT_FAILURE;
  dialog.show();

  QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &dialog, [&dialog] {
    char byte = 0;
    if (read(STDIN_FILENO, &byte, 1) != 1) return QApplication::quit();
    QTimer::singleShot(0, &dialog, [] { Tell("-"); });  // after what had been begun
  });
  return QApplication::exec();
}
