#include "app/desktop/MainWindow.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>

#include "app/desktop/FleetSummary.h"
#include "app/desktop/ListPane.h"
#include "app/desktop/LiveProjectors.h"
#include "app/desktop/Notify.h"
#include "app/desktop/Preferences.h"
#include "app/desktop/PresetActions.h"
#include "app/desktop/alerts/AlertList.h"
#include "app/desktop/dialogs/DialogKeeper.h"
#include "app/desktop/log/CommandLog.h"
#include "app/desktop/log/SettingNames.h"
#include "app/desktop/profiles/ProfileActions.h"
#include "app/desktop/profiles/TransferActions.h"
#include "app/desktop/settings/SettingsActions.h"
#include "app/desktop/simulation/Demonstration.h"
#include "app/desktop/simulation/FaultPanel.h"
#include "app/desktop/work/WorkActions.h"
#include "host/CAdvanceDlg.h"
#include "i18n/Catalog.h"
#include "toolkit/Icons.h"

namespace {

constexpr QSize kUsualSize{1340, 760};
constexpr QSize kFrame{18, 40};  // of a window; a guess until it is shown
constexpr std::size_t kOpenedUnasked = 8;
constexpr int kToldFor = 10'000;  // milliseconds

constexpr const char* kGeometryKey = "window/geometry";
constexpr const char* kStateKey = "window/docks";
constexpr const char* kSidesKey = "window/panes";
constexpr const char* kProjectorColumnsKey = "window/liveColumns";
constexpr const char* kLogColumnsKey = "window/logColumns";
constexpr const char* kProjectorKey = "window/projector";
constexpr const char* kProfilesKey = "window/profiles";

QString CommandName(const FleetProfile& profile, const PjtCommand& command) {
  static std::map<std::pair<int, int>, std::map<std::uint16_t, QString>> all;
  const CModelInfo2& model = profile.model->info;
  auto& names = all[{model.DialogType, model.ModelCode}];
  if (names.empty()) names = SettingNames(model.DialogType, model.ModelCode);
  const auto name = names.find(command.code);
  return name == names.end() ? QString() : name->second;
}

}  // namespace

MainWindow::MainWindow(std::vector<FleetProfile> profiles, const FleetPolicy& policy)
    : MainWindow(ProfileDocument(std::move(profiles)), nullptr, policy) {}

MainWindow::MainWindow(ProfileDocument profiles, QSettings* settings, const FleetPolicy& policy)
    : profiles_(std::move(profiles)),
      firstProfiles_(profiles_.FileName()),
      settings_(settings),
      log_(new CommandLog),
      faults_(new FaultPanel),
      alerts_(new AlertList),
      live_(std::make_unique<LiveProjectors>(
          policy,
          [this](const FleetProfile& profile, const PjtCommand& command, const PjtReply& reply,
                 std::chrono::microseconds elapsed) {
            log_->Add({QDateTime::currentDateTime(), QString::fromStdString(profile.name),
                       CommandName(profile, command), command, reply, elapsed});
          })),
      pane_(new ListPane(live_->Watch())),
      projectors_(&pane_->View()),
      work_(new WorkActions(
          [this] { return pane_->Selected(); },
          [this](const std::string& id) {
            const int position = projectors_->Model().Find(id);
            return position < 0
                       ? QString()
                       : QString::fromStdString(
                             profiles_.Projectors()[static_cast<std::size_t>(position)].name);
          },
          live_->Watch(), *this)),
      profileActions_(new ProfileActions(
          profiles_, [this] { return projectors_->Selected(); }, *this)),
      transfers_(new TransferActions(profiles_, *profileActions_, *this)),
      presets_(new PresetActions({.selected = [this] { return pane_->Selected(); },
                                  .watch = live_->Watch(),
                                  .work = *work_,
                                  .document = profiles_,
                                  .edits = *profileActions_,
                                  .window = *this})),
      settingsActions_(new SettingsActions(
          [this] {
            ProjectorSessions sessions;
            for (const ProjectorRow* row : pane_->Selected())
              sessions.push_back(live_->Session(row->profile));
            return sessions;
          },
          [this](QObject* context, std::function<void()> work) {
            return dialogs_->RunWhenQuiet(context, std::move(work));
          },
          *this)),
      dialogs_(std::make_unique<DialogKeeper>(*this, settings)) {
  setCentralWidget(pane_);
  MakeDocks();
  MakeMenus();
  Connect();
  ShowProfiles();
  SelectFirst();
  Restore();
  projectors_->FocusTable();
}

// What uses the projectors ends before them.
MainWindow::~MainWindow() {
  faults_->SetSession(nullptr);
  delete work_;
  dialogs_->CloseAll();
  delete takeCentralWidget();
}

void MainWindow::Connect() {
  if (const std::string problem = CatalogProblem(); !problem.empty()) {
    statusBar()->addWidget(new QLabel(QString::fromStdString(problem)));
  }
  auto* status = new FleetSummary;
  statusBar()->addPermanentWidget(status);
  connect(pane_, &ListPane::Counted, status, &FleetSummary::Show);
  alerts_->SetRules(AlertRules::Read(settings_));
  connect(pane_, &ListPane::Counted, this, [this](const std::vector<ProjectorRow>& rows) {
    alerts_->Look(rows, std::chrono::system_clock::now());
  });
  connect(alerts_, &AlertList::Changed, this, &MainWindow::TakeAlerts);
  connect(alerts_, &AlertList::Activated, this, [this](const std::string& id) {
    if (const int position = projectors_->Model().Find(id); position >= 0)
      projectors_->Select(position);
  });
  connect(alerts_, &AlertList::Raised, this, [this](const QStringList& texts) {
    const AlertRules rules = AlertRules::Read(settings_);
    if (settings_ != nullptr && rules.notifies && !rules.IsQuiet(QTime::currentTime()))
      Notify(*this, texts);
  });
  connect(work_, &WorkActions::Told, this,
          [this](const QString& text) { statusBar()->showMessage(text, kToldFor); });
  connect(log_, &CommandLog::Updated, faults_, &FaultPanel::RefreshStates);
  connect(faults_, &FaultPanel::Changed, this,
          [this](const ProjectorSession* session) { live_->TakeSimulation(*session); });
  connect(live_.get(), &LiveProjectors::Changed, pane_, &ListPane::Refresh);
  connect(projectors_, &ProjectorView::Activated, this, &MainWindow::OpenSelected);
  connect(projectors_, &ProjectorView::SelectionChanged, this, &MainWindow::TakeSelection);
  connect(findChild<QDockWidget*>(QStringLiteral("simulation")), &QDockWidget::visibilityChanged,
          this, &MainWindow::TakeSelection);
  connect(profileActions_, &ProfileActions::Changed, this, [this](int selected) {
    ShowProfiles();
    if (selected >= 0) projectors_->Select(selected);
  });
  const auto setOpen = [this](const ProjectorSession* session, bool isOpen) {
    const int position = projectors_->Model().Find(live_->IdOf(*session));
    if (position < 0) return;
    projectors_->Model().Change(position, [isOpen](ProjectorRow& row) { row.isOpen = isOpen; });
  };
  connect(dialogs_.get(), &DialogKeeper::Opened, this,
          [this, setOpen](const ProjectorSession* session) {
            live_->Watch().LeaveToDialog(live_->IdOf(*session));
            setOpen(session, true);
          });
  connect(dialogs_.get(), &DialogKeeper::Closed, this,
          [this, setOpen](const ProjectorSession* session) {
            live_->Watch().TakeBack(live_->IdOf(*session));
            setOpen(session, false);
          });
}

// A simulation that nobody looks at needs no session.
void MainWindow::TakeSelection() {
  const ProjectorRow* current = projectors_->Current();
  const auto* dock = findChild<QDockWidget*>(QStringLiteral("simulation"));
  const bool isWanted = current != nullptr && dock->isVisible();
  faults_->SetSession(isWanted ? live_->Session(current->profile).get() : nullptr);
  const bool any = projectors_->SelectedCount() > 0;
  profileActions_->Update();
  settingsActions_->Update(any);
  work_->Update(any);
  presets_->Update(any);
}

void MainWindow::TakeAlerts() {
  std::set<std::string> open;
  for (const Alert& alert : alerts_->Open()) open.insert(alert.id);
  const auto& rows = projectors_->Model().All();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const bool has = open.contains(rows[i].id);
    if (rows[i].hasAlert == has) continue;
    projectors_->Model().Change(static_cast<int>(i),
                                [has](ProjectorRow& row) { row.hasAlert = has; });
  }
}

void MainWindow::ShowPreferences() {
  auto* dialog = new Preferences(*settings_, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this,
          [this] { alerts_->SetRules(AlertRules::Read(settings_)); });
  dialog->open();
}

void MainWindow::ShowProfiles() {
  faults_->SetSession(nullptr);
  for (const auto& session : live_->SetProfiles(profiles_.Projectors())) dialogs_->Close(*session);
  dialogs_->UpdateAll();
  pane_->SetProfiles(profiles_.Projectors());
  TakeSelection();
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
  auto first = std::ranges::find(all, last, &FleetProfile::name);
  if (first == all.end())
    first = std::ranges::find_if(
        all, [](const FleetProfile& profile) { return HasRowsOnEveryTab(profile.model->info); });
  if (first != all.end()) projectors_->Select(static_cast<int>(first - all.begin()));
}

void MainWindow::OpenSelected() {
  const std::vector<int> positions = projectors_->Selected();
  const auto open = [this, positions] {
    for (const int position : positions)
      dialogs_->Open(*Session(static_cast<std::size_t>(position)));
  };
  if (positions.size() <= kOpenedUnasked) return open();
  auto* question =
      new QMessageBox(QMessageBox::Question, tr("Open Settings"),
                      tr("Open %n dialogs?", nullptr, static_cast<int>(positions.size())),
                      QMessageBox::Open | QMessageBox::Cancel, this);
  question->setAttribute(Qt::WA_DeleteOnClose);
  connect(question, &QDialog::accepted, this, open);
  RemoveForeignButtonIcons(*question);
  question->open();
}

std::shared_ptr<ProjectorSession> MainWindow::Session(std::size_t projector) const {
  return live_->Session(profiles_.Projectors()[projector]);
}

CAdvanceDlg* MainWindow::OpenDialog(std::size_t projector, std::optional<int> tab) {
  projectors_->Select(static_cast<int>(projector));
  return dialogs_->Open(*Session(projector), tab);
}

CAdvanceDlg* MainWindow::Dialog(std::size_t projector) const {
  return dialogs_->Of(*Session(projector));
}

void MainWindow::Demonstrate() {
  ProjectorSessions simulated;
  for (const FleetProfile& profile : profiles_.Projectors()) {
    if (profile.link == ProjectorLink::Simulated) simulated.push_back(live_->Session(profile));
  }
  ShowDemonstration(simulated);
  for (const auto& session : simulated) live_->TakeSimulation(*session);
}

QString MainWindow::LastProfiles(const QSettings& settings) {
  return settings.value(kProfilesKey).toString();
}

// The first time, the window opens at the lower right, so that a dialog at the upper left covers
// little of it.
void MainWindow::Restore() {
  const QRect screen = MainWindow::screen()->availableGeometry();
  if (settings_ != nullptr && restoreGeometry(settings_->value(kGeometryKey).toByteArray())) {
    restoreState(settings_->value(kStateKey).toByteArray());
    if (!pane_->RestoreState(settings_->value(kSidesKey).toByteArray())) pane_->Spread(width());
    projectors_->Columns().restoreState(settings_->value(kProjectorColumnsKey).toByteArray());
    log_->Columns().restoreState(settings_->value(kLogColumnsKey).toByteArray());
    return;
  }
  resize(kUsualSize.boundedTo(screen.size() - kFrame));
  pane_->Spread(width());
  move(screen.right() + 1 - width() - kFrame.width(),
       screen.bottom() + 1 - height() - kFrame.height());
}

void MainWindow::Remember() {
  if (settings_ == nullptr) return;
  settings_->setValue(kGeometryKey, saveGeometry());
  settings_->setValue(kStateKey, saveState());
  settings_->setValue(kSidesKey, pane_->SaveState());
  settings_->setValue(kProjectorColumnsKey, projectors_->Columns().saveState());
  settings_->setValue(kLogColumnsKey, log_->Columns().saveState());
  if (profiles_.FileName() != firstProfiles_) {
    settings_->setValue(kProfilesKey, QFileInfo(profiles_.FileName()).absoluteFilePath());
  }
  if (const ProjectorRow* current = projectors_->Current()) {
    settings_->setValue(kProjectorKey, QString::fromStdString(current->profile.name));
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
