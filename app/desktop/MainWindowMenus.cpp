// The menus, tool bar and docks of the main window.

#include <QAction>
#include <QDockWidget>
#include <QMenuBar>
#include <QScrollArea>
#include <QToolBar>
#include <QToolButton>

#include "app/desktop/HelpWindows.h"
#include "app/desktop/ListPane.h"
#include "app/desktop/LiveProjectors.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/Mnemonic.h"
#include "app/desktop/PresetActions.h"
#include "app/desktop/SettingsActions.h"
#include "app/desktop/alerts/AlertList.h"
#include "app/desktop/log/CommandLog.h"
#include "app/desktop/profiles/ProfileActions.h"
#include "app/desktop/profiles/TransferActions.h"
#include "app/desktop/simulation/FaultPanel.h"
#include "app/desktop/work/WorkActions.h"

// Both are closed at first, so that dialogs have room.
void MainWindow::MakeDocks() {
  const auto add = [this](const QString& title, const char* name, QWidget* widget,
                          Qt::DockWidgetArea area) {
    auto* dock = new QDockWidget(title, this);
    dock->setObjectName(QLatin1String(name));
    dock->setWidget(widget);
    addDockWidget(area, dock);
    dock->hide();
  };
  auto* faults = new QScrollArea;
  faults->setWidget(faults_);
  faults->setWidgetResizable(true);
  faults->setFrameShape(QFrame::NoFrame);
  add(tr("Alerts"), "alerts", alerts_, Qt::BottomDockWidgetArea);
  add(tr("Simulation"), "simulation", faults, Qt::RightDockWidgetArea);
  add(tr("Command Log"), "log", log_, Qt::BottomDockWidgetArea);
}

void MainWindow::MakeMenus() {
  const auto add = [this](QMenu* menu, const QString& text, const QKeySequence& keys, auto act) {
    QAction* action = menu->addAction(text);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, act);
    return action;
  };

  QMenu* file = menuBar()->addMenu(tr("&File"));
  file->addActions({profileActions_->Open(), profileActions_->Reload(), profileActions_->SaveAs()});
  file->addSeparator();
  file->addActions({transfers_->Import(), transfers_->Export()});
  file->addSeparator();
  file->addAction(log_->SaveAs());
  file->addSeparator();
  add(file, tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); });

  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  edit->addActions({profileActions_->Undo(), profileActions_->Redo()});
  edit->addSeparator();
  const QList<QAction*> profile{profileActions_->Add(), profileActions_->Edit(),
                                profileActions_->Duplicate(), profileActions_->Tag(),
                                profileActions_->Remove()};
  edit->addActions(profile);
  edit->addSeparator();
  edit->addAction(transfers_->Find());
  edit->addSeparator();
  QAction* preferences = add(edit, tr("&Preferences…"), QKeySequence(Qt::CTRL | Qt::Key_Comma),
                             &MainWindow::ShowPreferences);
  preferences->setMenuRole(QAction::PreferencesRole);
  preferences->setEnabled(settings_ != nullptr);

  QMenu* projector = menuBar()->addMenu(tr("&Projector"));
  QAction* open = add(projector, tr("&Open Settings"), QKeySequence(Qt::CTRL | Qt::Key_Return),
                      &MainWindow::OpenSelected);
  open->setIconText(tr("Open"));
  QAction* refresh = add(projector, tr("Re&fresh"), QKeySequence(Qt::CTRL | Qt::Key_R), [this] {
    for (const ProjectorRow* row : pane_->Selected()) live_->Watch().Projectors().AskSoon(row->id);
  });
  projector->addSeparator();
  const QList<QAction*> usual{work_->Power(), work_->Input(),  work_->Blank(),
                              work_->Mute(),  work_->Freeze(), presets_->Presets()};
  projector->addActions(usual);
  projector->addSeparator();
  const QList<QAction*> settings{settingsActions_->Save(), settingsActions_->Compare(),
                                 settingsActions_->Apply()};
  projector->addActions(settings);
  const auto gap = [this] {
    auto* separator = new QAction(this);
    separator->setSeparator(true);
    return QList<QAction*>{separator};
  };
  projectors_->AddContextActions(QList<QAction*>{open, refresh} + gap() + usual + gap() + settings +
                                 gap() + profile);
  for (QAction* action : QList<QAction*>{refresh, work_->PowerOn(), work_->PowerOff()} + usual)
    action->setIconText(WithoutMnemonic(action->text()));
  pane_->AddDetails(QList<QAction*>{open} + usual);

  QMenu* view = menuBar()->addMenu(tr("&View"));
  add(view, tr("&Find"), QKeySequence::Find, [this] { projectors_->FocusSearch(); });
  view->addSeparator();
  const auto addToggle = [&](const char* dock, const QString& text, const QKeySequence& keys) {
    QAction* toggle = findChild<QDockWidget*>(QLatin1String(dock))->toggleViewAction();
    toggle->setText(text);
    toggle->setShortcut(keys);
    view->addAction(toggle);
  };
  addToggle("simulation", tr("&Simulation"), Qt::CTRL | Qt::Key_1);
  addToggle("log", tr("&Command Log"), Qt::CTRL | Qt::Key_2);
  addToggle("alerts", tr("&Alerts"), Qt::CTRL | Qt::Key_3);
  view->addSeparator();
  view->addActions({log_->ChangesOnly(), log_->ErrorsOnly(), log_->ClearAll()});
  log_->ChangesOnly()->setShortcut(Qt::CTRL | Qt::Key_H);
  log_->ClearAll()->setShortcut(Qt::CTRL | Qt::Key_L);

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  add(help, tr("&Keyboard Shortcuts"), QKeySequence::HelpContents,
      [this] { ShowShortcuts(*this); });
  add(help, tr("&About"), {}, [this] { ShowAbout(*this); });

  QToolBar* tools = addToolBar(tr("Tools"));
  tools->setObjectName(QStringLiteral("tools"));
  tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
  tools->addActions({open, work_->PowerOn(), work_->PowerOff(), work_->Input(), work_->Blank(),
                     presets_->Presets()});
  tools->addSeparator();
  tools->addActions({refresh, transfers_->Find()});
  for (auto* button : tools->findChildren<QToolButton*>()) {
    if (button->defaultAction() != nullptr && button->defaultAction()->menu() != nullptr)
      button->setPopupMode(QToolButton::InstantPopup);
  }
}
