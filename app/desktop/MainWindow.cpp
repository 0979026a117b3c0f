#include "app/desktop/MainWindow.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include "app/desktop/HelpWindows.h"
#include "app/desktop/dialogs/DialogKeeper.h"
#include "app/desktop/log/CommandLog.h"
#include "app/desktop/log/SettingNames.h"
#include "app/desktop/profiles/ProfileActions.h"
#include "app/desktop/projectors/ProjectorView.h"
#include "app/desktop/settings/SettingsActions.h"
#include "app/desktop/simulation/FaultPanel.h"
#include "host/CAdvanceDlg.h"
#include "i18n/Catalog.h"

namespace {

constexpr int kGap = 9;
constexpr QSize kUsualSize{1340, 760};
constexpr QSize kFrame{2 * kGap, 40};  // of a window; a guess until it is shown

constexpr const char* kGeometryKey = "window/geometry";
constexpr const char* kSidesKey = "window/sides";
constexpr const char* kToolsKey = "window/tools";
constexpr const char* kProjectorColumnsKey = "window/projectorColumns";
constexpr const char* kLogColumnsKey = "window/logColumns";
constexpr const char* kProjectorKey = "window/projector";
constexpr const char* kProfilesKey = "window/profiles";

}  // namespace

MainWindow::MainWindow(std::vector<ProjectorProfile> profiles)
    : MainWindow(ProfileDocument(std::move(profiles))) {}

MainWindow::MainWindow(ProfileDocument profiles, QSettings* settings)
    : profiles_(std::move(profiles)),
      firstProfiles_(profiles_.FileName()),
      settings_(settings),
      projectors_(new ProjectorView),
      log_(new CommandLog),
      faults_(new FaultPanel),
      sides_(new QSplitter),
      tools_(new QSplitter(Qt::Vertical)),
      profileActions_(new ProfileActions(
          profiles_, [this] { return projectors_->CurrentRow(); }, *this)),
      settingsActions_(new SettingsActions([this] { return projectors_->Selected(); },
                                           [this](QObject* context, std::function<void()> work) {
                                             return dialogs_->RunWhenQuiet(context,
                                                                           std::move(work));
                                           },
                                           *this)),
      dialogs_(std::make_unique<DialogKeeper>(
          *this,
          [this] {
            const QRect tools(tools_->mapToGlobal(QPoint()), tools_->size());
            return std::vector{log_->NewestRows(), tools, frameGeometry()};
          },
          settings)) {
  MakeLayout();
  MakeMenus();
  if (const std::string problem = CatalogProblem(); !problem.empty()) {
    statusBar()->addWidget(new QLabel(QString::fromStdString(problem)));
  }
  connect(log_, &CommandLog::Updated, faults_, &FaultPanel::RefreshStates);
  connect(projectors_, &ProjectorView::Activated, this, &MainWindow::OpenCurrent);
  connect(projectors_, &ProjectorView::CurrentChanged, this, [this] {
    faults_->SetSession(projectors_->Current());
    profileActions_->Update();
    settingsActions_->Update();
  });
  connect(profileActions_, &ProfileActions::Changed, this, [this](int selected) {
    ShowProfiles();
    if (selected >= 0) projectors_->Select(selected);
  });
  connect(dialogs_.get(), &DialogKeeper::Opened, this, [this](const ProjectorSession* session) {
    projectors_->Model().SetState(session, tr("Open"));
  });
  connect(dialogs_.get(), &DialogKeeper::Closed, this,
          [this](const ProjectorSession* session) { projectors_->Model().SetState(session, {}); });
  ShowProfiles();
  SelectFirst();
  Restore();
  projectors_->FocusTable();
}

MainWindow::~MainWindow() {
  faults_->SetSession(nullptr);
  dialogs_->CloseAll();
}

void MainWindow::MakeLayout() {
  auto* faults = new QScrollArea;
  faults->setWidget(faults_);
  faults->setWidgetResizable(true);
  faults->setFrameShape(QFrame::NoFrame);
  tools_->addWidget(faults);
  tools_->addWidget(log_);
  tools_->setStretchFactor(1, 1);
  tools_->setSizes({faults_->minimumSizeHint().height(), kUsualSize.height()});
  tools_->setHandleWidth(kGap);
  tools_->setChildrenCollapsible(false);
  sides_->addWidget(projectors_);
  sides_->addWidget(tools_);
  sides_->setStretchFactor(1, 1);
  sides_->setChildrenCollapsible(false);
  sides_->setHandleWidth(kGap);
  // A splitter does not mirror its own margins, so a widget around it has them.
  auto* center = new QWidget;
  auto* layout = new QVBoxLayout(center);
  layout->setContentsMargins(kGap, kGap, kGap, kGap);
  layout->addWidget(sides_);
  setCentralWidget(center);
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
  file->addAction(log_->SaveAs());
  file->addSeparator();
  add(file, tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); });

  QMenu* projector = menuBar()->addMenu(tr("&Projector"));
  QAction* open = add(projector, tr("&Open Settings"), QKeySequence(Qt::CTRL | Qt::Key_Return),
                      &MainWindow::OpenCurrent);
  projector->addSeparator();
  projector->addActions(
      {settingsActions_->Save(), settingsActions_->Compare(), settingsActions_->Apply()});
  projector->addSeparator();
  projector->addActions({profileActions_->Add(), profileActions_->Edit(),
                         profileActions_->Duplicate(), profileActions_->Remove()});
  projectors_->AddContextActions({open, settingsActions_->Save(), settingsActions_->Compare(),
                                  settingsActions_->Apply(), profileActions_->Add(),
                                  profileActions_->Edit(), profileActions_->Duplicate(),
                                  profileActions_->Remove()});

  QMenu* view = menuBar()->addMenu(tr("&View"));
  add(view, tr("&Find Projectors"), QKeySequence::Find, [this] { projectors_->FocusSearch(); });
  view->addSeparator();
  const auto addToggle = [&](const QString& text, const QKeySequence& keys, QWidget* part) {
    QAction* action = add(view, text, keys, [part](bool shown) { part->setVisible(shown); });
    action->setCheckable(true);
    action->setChecked(true);
  };
  addToggle(tr("&Simulation"), QKeySequence(Qt::CTRL | Qt::Key_1), tools_->widget(0));
  addToggle(tr("&Command Log"), QKeySequence(Qt::CTRL | Qt::Key_2), log_);
  view->addSeparator();
  view->addActions({log_->ChangesOnly(), log_->ClearAll()});
  log_->ChangesOnly()->setShortcut(Qt::CTRL | Qt::Key_H);
  log_->ClearAll()->setShortcut(Qt::CTRL | Qt::Key_L);

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  add(help, tr("&Keyboard Shortcuts"), QKeySequence::HelpContents,
      [this] { ShowShortcuts(*this); });
  add(help, tr("&About"), {}, [this] { ShowAbout(*this); });
}

std::shared_ptr<ProjectorSession> MainWindow::MakeSession(const ProjectorProfile& profile) {
  auto observer = [log = QPointer(log_), name = QString::fromStdString(profile.Name),
                   type = profile.Model.DialogType, code = profile.Model.ModelCode,
                   settings = std::map<std::uint16_t, QString>()](
                      const PjtCommand& command, const PjtReply& reply,
                      std::chrono::microseconds elapsed) mutable {
    if (!log) return;
    if (settings.empty()) settings = SettingNames(type, code);
    const auto setting = settings.find(command.code);
    log->Add({QTime::currentTime(), name, setting == settings.end() ? QString() : setting->second,
              command, reply, elapsed});
  };
  return std::make_shared<ProjectorSession>(profile, std::move(observer));
}

// A projector whose profile has not changed keeps its simulation and its dialog.
void MainWindow::ShowProfiles() {
  ProjectorTableModel::Sessions before = projectors_->Model().All();
  ProjectorTableModel::Sessions sessions;
  for (const ProjectorProfile& profile : profiles_.Projectors()) {
    const auto same = std::ranges::find_if(before, [&profile](const auto& session) {
      return session != nullptr && session->Profile() == profile;
    });
    sessions.push_back(same == before.end() ? MakeSession(profile) : std::move(*same));
  }
  for (const auto& session : before) {
    if (session != nullptr) dialogs_->Close(*session);
  }
  projectors_->SetSessions(std::move(sessions));
  profileActions_->Update();
  setWindowTitle(profiles_.HasFile()
                     ? tr("Advanced Control: %1").arg(QFileInfo(profiles_.FileName()).fileName())
                     : tr("Advanced Control"));
}

// Selects the last selected projector, or else one that has settings on every tab.
void MainWindow::SelectFirst() {
  const auto& all = profiles_.Projectors();
  const std::string last = settings_ == nullptr
                               ? std::string()
                               : settings_->value(kProjectorKey).toString().toStdString();
  auto first = std::ranges::find(all, last, &ProjectorProfile::Name);
  if (first == all.end())
    first = std::ranges::find_if(all, HasRowsOnEveryTab, &ProjectorProfile::Model);
  if (first != all.end()) projectors_->Select(static_cast<int>(first - all.begin()));
}

void MainWindow::OpenCurrent() {
  if (const int row = projectors_->CurrentRow(); row >= 0)
    OpenDialog(static_cast<std::size_t>(row));
}

CAdvanceDlg* MainWindow::OpenDialog(std::size_t projector, std::optional<int> tab) {
  projectors_->Select(static_cast<int>(projector));
  return dialogs_->Open(*projectors_->Model().All()[projector], tab);
}

CAdvanceDlg* MainWindow::Dialog(std::size_t projector) const {
  return dialogs_->Of(*projectors_->Model().All()[projector]);
}

QString MainWindow::LastProfiles(const QSettings& settings) {
  return settings.value(kProfilesKey).toString();
}

// The first time, the window opens at the lower right, so that a dialog at the upper left covers
// neither the log nor the simulation.
void MainWindow::Restore() {
  const QRect screen = MainWindow::screen()->availableGeometry();
  if (settings_ != nullptr && restoreGeometry(settings_->value(kGeometryKey).toByteArray())) {
    sides_->restoreState(settings_->value(kSidesKey).toByteArray());
    tools_->restoreState(settings_->value(kToolsKey).toByteArray());
    projectors_->Columns().restoreState(settings_->value(kProjectorColumnsKey).toByteArray());
    log_->Columns().restoreState(settings_->value(kLogColumnsKey).toByteArray());
    return;
  }
  resize(kUsualSize.boundedTo(screen.size() - kFrame));
  const int listWidth = std::min(width() * 9 / 20, width() - tools_->sizeHint().width());
  sides_->setSizes({listWidth, width() - listWidth});
  move(screen.right() + 1 - width() - kFrame.width(),
       screen.bottom() + 1 - height() - kFrame.height());
}

void MainWindow::Remember() {
  if (settings_ == nullptr) return;
  settings_->setValue(kGeometryKey, saveGeometry());
  settings_->setValue(kSidesKey, sides_->saveState());
  settings_->setValue(kToolsKey, tools_->saveState());
  settings_->setValue(kProjectorColumnsKey, projectors_->Columns().saveState());
  settings_->setValue(kLogColumnsKey, log_->Columns().saveState());
  if (profiles_.FileName() != firstProfiles_) {
    settings_->setValue(kProfilesKey, QFileInfo(profiles_.FileName()).absoluteFilePath());
  }
  if (const ProjectorSession* current = projectors_->Current()) {
    settings_->setValue(kProjectorKey, QString::fromStdString(current->Profile().Name));
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  Remember();
  // Abandons commands that wait. All event loops then end, also those of messages and pop-ups; the
  // dialogs are deleted with this window.
  dialogs_->RejectAll();
  event->accept();
  QCoreApplication::exit();
}
