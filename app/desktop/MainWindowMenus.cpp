#include "app/desktop/MainWindowMenus.h"

#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>

#include "app/desktop/HelpWindows.h"
#include "app/desktop/ListPane.h"
#include "app/desktop/Mnemonic.h"
#include "app/desktop/PresetActions.h"
#include "app/desktop/SettingsActions.h"
#include "app/desktop/alerts/AlertList.h"
#include "app/desktop/log/CommandLog.h"
#include "app/desktop/profiles/ProfileActions.h"
#include "app/desktop/profiles/ProfileEditing.h"
#include "app/desktop/profiles/ProfileFileActions.h"
#include "app/desktop/profiles/ProfileHistory.h"
#include "app/desktop/profiles/TransferActions.h"
#include "app/desktop/simulation/FaultPanel.h"
#include "app/desktop/work/UsualActions.h"

namespace {

struct MenuText {
  Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

/// Asks for the room of its contents, where a usual scroll area asks for a few letters at most.
class WholePane : public QScrollArea {
 public:
  explicit WholePane(QWidget& contents) {
    setWidget(&contents);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
  }

  [[nodiscard]] QSize sizeHint() const override {
    const int bar = verticalScrollBar()->sizeHint().width();
    return {widget()->minimumSizeHint().width() + bar, QScrollArea::sizeHint().height()};
  }
};

}  // namespace

void MakeDocks(QMainWindow& window, AlertList& alerts, FaultPanel& faults, CommandLog& log) {
  const auto add = [&window](const QString& title, const char* name, QWidget* widget,
                             Qt::DockWidgetArea area) {
    auto* dock = new QDockWidget(title, &window);
    dock->setObjectName(QLatin1String(name));
    dock->setWidget(widget);
    window.addDockWidget(area, dock);
    dock->hide();
    return dock;
  };
  auto* alertDock = add(MenuText::tr("Alerts"), "alerts", &alerts, Qt::BottomDockWidgetArea);
  add(MenuText::tr("Simulation"), "simulation", new WholePane(faults), Qt::RightDockWidgetArea);
  auto* logDock = add(MenuText::tr("Command Log"), "log", &log, Qt::BottomDockWidgetArea);
  // One that opens beside the other gets its share, not what the other leaves.
  const auto share = [&window, alertDock, logDock] {
    if (alertDock->isHidden() || logDock->isHidden()) return;
    window.resizeDocks({alertDock, logDock}, {2, 3}, Qt::Horizontal);
  };
  for (const QDockWidget* dock : {alertDock, logDock})
    QObject::connect(dock->toggleViewAction(), &QAction::triggered, &window, share);
}

void MakeMenus(QMainWindow& window, const MenuParts& parts) {
  const auto add = [&window](QMenu* menu, const QString& text, const QKeySequence& keys,
                             const std::function<void()>& act) {
    QAction* action = menu->addAction(text);
    action->setShortcut(keys);
    if (act) QObject::connect(action, &QAction::triggered, &window, act);
    return action;
  };

  QMenu* file = window.menuBar()->addMenu(MenuText::tr("&File"));
  file->addActions({parts.editing.Files().Open(), parts.editing.Files().Reload(),
                    parts.editing.Files().SaveAs()});
  file->addSeparator();
  file->addActions({parts.editing.Transfers().Import(), parts.editing.Transfers().Export()});
  file->addSeparator();
  file->addAction(parts.log.SaveAs());
  file->addSeparator();
  add(file, MenuText::tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q),
      [&window] { window.close(); });

  QMenu* edit = window.menuBar()->addMenu(MenuText::tr("&Edit"));
  edit->addActions({parts.editing.History().Undo(), parts.editing.History().Redo()});
  edit->addSeparator();
  const QList<QAction*> profile{parts.editing.Projectors().Add(), parts.editing.Projectors().Edit(),
                                parts.editing.Projectors().Duplicate(),
                                parts.editing.Projectors().Tag(),
                                parts.editing.Projectors().Remove()};
  edit->addActions(profile);
  edit->addSeparator();
  edit->addAction(parts.editing.Transfers().Find());
  edit->addSeparator();
  QAction* preferences = add(edit, MenuText::tr("&Preferences…"),
                             QKeySequence(Qt::CTRL | Qt::Key_Comma), parts.preferences);
  preferences->setMenuRole(QAction::PreferencesRole);
  preferences->setEnabled(parts.preferences != nullptr);

  QMenu* projector = window.menuBar()->addMenu(MenuText::tr("&Projector"));
  QAction* open = add(projector, MenuText::tr("&Open Settings"),
                      QKeySequence(Qt::CTRL | Qt::Key_Return), parts.open);
  open->setIconText(MenuText::tr("Open"));
  QAction* refresh =
      add(projector, MenuText::tr("Re&fresh"), QKeySequence(Qt::CTRL | Qt::Key_R), parts.refresh);
  projector->addSeparator();
  const QList<QAction*> usual{parts.usual.Power(), parts.usual.Input(),  parts.usual.Blank(),
                              parts.usual.Mute(),  parts.usual.Freeze(), parts.presets.Presets()};
  projector->addActions(usual);
  projector->addSeparator();
  const QList<QAction*> settings{parts.settings.Save(), parts.settings.Compare(),
                                 parts.settings.Apply()};
  projector->addActions(settings);
  const auto gap = [&window] {
    auto* separator = new QAction(&window);
    separator->setSeparator(true);
    return QList<QAction*>{separator};
  };
  parts.pane.View().AddContextActions(QList<QAction*>{open, refresh} + gap() + usual + gap() +
                                      settings + gap() + profile);
  for (QAction* action :
       QList<QAction*>{refresh, parts.usual.PowerOn(), parts.usual.PowerOff()} + usual)
    action->setIconText(WithoutMnemonic(action->text()));
  parts.pane.AddDetails(QList<QAction*>{open} + usual);

  QMenu* view = window.menuBar()->addMenu(MenuText::tr("&View"));
  add(view, MenuText::tr("&Find"), QKeySequence::Find,
      [&view = parts.pane.View()] { view.FocusSearch(); });
  view->addSeparator();
  const auto addToggle = [&](const char* dock, const QString& text, const QKeySequence& keys) {
    QAction* toggle = window.findChild<QDockWidget*>(QLatin1String(dock))->toggleViewAction();
    toggle->setText(text);
    toggle->setShortcut(keys);
    view->addAction(toggle);
  };
  addToggle("simulation", MenuText::tr("&Simulation"), Qt::CTRL | Qt::Key_1);
  addToggle("log", MenuText::tr("&Command Log"), Qt::CTRL | Qt::Key_2);
  addToggle("alerts", MenuText::tr("&Alerts"), Qt::CTRL | Qt::Key_3);
  view->addSeparator();
  view->addActions({parts.log.ChangesOnly(), parts.log.ErrorsOnly(), parts.log.ClearAll()});
  parts.log.ChangesOnly()->setShortcut(Qt::CTRL | Qt::Key_H);
  parts.log.ClearAll()->setShortcut(Qt::CTRL | Qt::Key_L);

  QMenu* help = window.menuBar()->addMenu(MenuText::tr("&Help"));
  add(help, MenuText::tr("&Keyboard Shortcuts"), QKeySequence::HelpContents,
      [&window] { ShowShortcuts(window); });
  add(help, MenuText::tr("&About"), {}, [&window] { ShowAbout(window); });

  QToolBar* tools = window.addToolBar(MenuText::tr("Tools"));
  tools->setObjectName(QStringLiteral("tools"));
  tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
  tools->addActions({open, parts.usual.PowerOn(), parts.usual.PowerOff(), parts.usual.Input(),
                     parts.usual.Blank(), parts.presets.Presets()});
  tools->addSeparator();
  tools->addActions({refresh, parts.editing.Transfers().Find()});
  for (auto* button : tools->findChildren<QToolButton*>()) {
    if (button->defaultAction() != nullptr && button->defaultAction()->menu() != nullptr)
      button->setPopupMode(QToolButton::InstantPopup);
  }
}
