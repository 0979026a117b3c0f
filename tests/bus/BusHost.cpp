// A dialog on a simulated projector, for use by an assistive technology: BusHost TYPE CODE. First
// writes how each setting should be presented, from the model's list of settings. Then writes every
// command, and a line "-" for each byte that it reads; after a "!" the projector refuses to reset
// the brightness, after a "." it does not.

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unistd.h>

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>

#include "device/ModelDataIntake.h"
#include "device/channels/LoggingChannel.h"
#include "i18n/SystemLanguage.h"
#include "settings/Rows.h"
#include "simulator/FaultChannel.h"
#include "simulator/SimulatedProjector.h"
#include "snapshots/SettingTexts.h"
#include "tests/support/DialogDriver.h"

namespace {

/// What assistive technologies hear of a setting besides its caption and value.
std::string Description(const SettingTexts& texts, const ModelSetting& setting) {
  if (setting.range) return "Range: " + texts.Values(setting);
  const bool isOnlyShown = std::holds_alternative<ListRow>(*setting.row) && !setting.changeable;
  return isOnlyShown ? "This setting is only shown here. A choice is not sent." : "";
}

void WriteLine(const std::string& line) { std::puts(line.c_str()); }

// Tab, key, kind, caption, text of the value, description.
void WriteSettings(const CModelInfo2& model, CPjtInterface& projector) {
  const SettingTexts texts(std::vector<std::string>{TEST_CATALOG_DIR}, kEnglishUnitedStates);
  const ModelSettings settings(MakeModelData(model));
  for (const ModelSetting& setting : settings.All()) {
    const auto value = setting.readable ? settings.Read(projector, setting) : std::nullopt;
    WriteLine(texts.Tab(setting) + '\t' + std::string(setting.key) + '\t' +
              std::to_string(static_cast<int>(setting.kind)) + '\t' + texts.Caption(setting) +
              '\t' + (value ? texts.Value(setting, *value) : "") + '\t' +
              Description(texts, setting));
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (argc != 3) return EXIT_FAILURE;
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  const CModelInfo2 model = FullModel(std::atoi(argv[1]), std::atoi(argv[2]));
  const auto projector = std::make_shared<FaultChannel>(
      std::make_shared<SimulatedProjector>(DescribeModel(MakeModelData(model))));
  CAdvanceDlg dialog;
  dialog.CopyData(&model, 0);
  dialog.Projector().SetChannel(projector);
  WriteSettings(model, dialog.Projector());
  dialog.Projector().SetChannel(std::make_shared<LoggingChannel>(
      projector,
      [](const PjtCommand& command, const PjtReply&, auto) { WriteLine(FormatCommand(command)); }));
  if (!dialog.Create()) return EXIT_FAILURE;
  dialog.show();

  QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &dialog, [&dialog, &projector] {
    char byte = 0;
    if (read(STDIN_FILENO, &byte, 1) != 1) return QApplication::quit();
    if (byte == '!')
      projector->SetFault(PjtOperation::ExecBrightnessReset, {.kind = Fault::Kind::Refuse});
    if (byte == '.') projector->Clear();
    QTimer::singleShot(0, &dialog, [] { WriteLine("-"); });  // after all work in progress
  });
  return QApplication::exec();
}
