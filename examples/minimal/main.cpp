#include <memory>

#include <QApplication>

#include "device/channels/BoundedChannel.h"
#include "host/CAdvanceDlg.h"
#include "simulator/SimulatedProjector.h"

using namespace AdvancedControl;

int main(int argc, char** argv) {
  QApplication application(argc, argv);

  CModelInfo2 model;
  model.ModelName = "Meeting room";
  model.DialogType = 5;
  model.ModelCode = 30;
  model.ConnectionKinds[0] = 1;
  model.ConnectionTexts1[0] = MakeNameSlot("192.168.1.20");

  CAdvanceDlg dialog;
  dialog.CopyData(&model, 0);
  dialog.Projector().SetChannel(
      std::make_shared<BoundedChannel>(std::make_shared<SimulatedProjector>()));
  dialog.DoModal();
}
