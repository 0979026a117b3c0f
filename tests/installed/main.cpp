// Opens the dialog, shows each page and moves its sliders. The host's own classes bear names that
// the library uses too.

#include <cstdio>
#include <memory>

#include <QApplication>
#include <QKeyEvent>
#include <QSlider>
#include <QTabBar>

#include "Namesakes.h"
#include "host/CAdvanceDlg.h"
#include "simulator/SimulatedProjector.h"

namespace {

void PressPageUp(QWidget& widget) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, Qt::Key_PageUp, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  CModelInfo2 model;
  model.ModelName = "Meeting room";
  model.DialogType = 5;
  model.ModelCode = 30;
  CAdvanceDlg dialog;
  dialog.CopyData(&model, 0);
  dialog.Projector().SetChannel(std::make_shared<AdvancedControl::SimulatedProjector>());
  if (!dialog.CreateShown()) return 2;

  auto* const tabs = dialog.findChild<QTabBar*>();
  for (int tab = 0; tab < tabs->count(); ++tab) {
    tabs->setCurrentIndex(tab);
    QCoreApplication::processEvents();
    for (QSlider* slider : dialog.findChildren<QSlider*>()) {
      if (slider->isVisible() && slider->isEnabled()) PressPageUp(*slider);
    }
  }
  const QString status = tabs->tabText(0);
  std::printf("%d calls, %d tabs, the first is \"%s\"\n", NamesakeCalls(), tabs->count(),
              qUtf8Printable(status));
  return NamesakeCalls() == 0 && tabs->count() > 5 && status == QLatin1String("Status") ? 0 : 1;
}
