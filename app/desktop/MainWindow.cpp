#include "app/desktop/MainWindow.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QSettings>
#include <QStatusBar>

#include "app/desktop/DriftCheck.h"
#include "app/desktop/FleetSummary.h"
#include "app/desktop/ListPane.h"
#include "app/desktop/LiveProjectors.h"
#include "app/desktop/MainWindowMenus.h"
#include "app/desktop/Notify.h"
#include "app/desktop/Preferences.h"
#include "app/desktop/PresetActions.h"
#include "app/desktop/SettingsActions.h"
#include "app/desktop/alerts/AlertList.h"
#include "app/desktop/dialogs/DialogKeeper.h"
#include "app/desktop/log/CommandLog.h"
#include "app/desktop/profiles/ProfileActions.h"
#include "app/desktop/profiles/ProfileEditing.h"
#include "app/desktop/profiles/ProfileHistory.h"
#include "app/desktop/profiles/TransferActions.h"
#include "app/desktop/simulation/Demonstration.h"
#include "app/desktop/simulation/FaultPanel.h"
#include "app/desktop/work/UsualActions.h"
#include "app/desktop/work/WorkActions.h"
#include "host/CAdvanceDlg.h"
#include "i18n/Catalog.h"
#include "toolkit/Accessibility.h"
#include "toolkit/Icons.h"

namespace {

constexpr std::size_t kOpenedUnasked = 8;
constexpr int kMessageTime = 10'000;  // milliseconds

/// The position of the projector that was selected last, or else of one that has settings on every
/// tab; −1 if there is none.
int FirstSelected(const std::vector<FleetProfile>& all, const std::string& last) {
  auto first = std::ranges::find(all, last, &FleetProfile::name);
  if (first == all.end())
    first = std::ranges::find_if(
        all, [](const FleetProfile& profile) { return HasRowsOnEveryTab(profile.model->info); });
  return first == all.end() ? -1 : static_cast<int>(first - all.begin());
}

}  // namespace

MainWindow::MainWindow(std::vector<FleetProfile> profiles, const FleetPolicy& policy)
    : MainWindow(ProfileDocument(std::move(profiles)), nullptr, policy) {}

MainWindow::MainWindow(ProfileDocument profiles, QSettings* settings, const FleetPolicy& policy)
    : profiles_(std::move(profiles)),
      memory_(settings, profiles_.FileName()),
      log_(new CommandLog),
      faults_(new FaultPanel),
      alerts_(new AlertList),
      live_(new LiveProjectors(
          policy,
          [this](const FleetProfile& profile, const PjtCommand& command, const PjtReply& reply,
                 std::chrono::microseconds elapsed) {
            log_->Add(profile, command, reply, elapsed);
          },
          this)),
      pane_(new ListPane(live_->Watch())),
      work_(new WorkActions([this](const std::string& id) { return pane_->NameOf(id); },
                            live_->Watch(), *this)),
      usual_(new UsualActions([this] { return pane_->Selected(); }, *work_, live_->Watch(), *this)),
      editing_(new ProfileEditing(
          profiles_, [this] { return pane_->View().Selected(); }, *this)),
      presets_(new PresetActions({.selected = [this] { return pane_->Selected(); },
                                  .tag = [this] { return pane_->View().Model().Group().tag; },
                                  .watch = live_->Watch(),
                                  .work = *work_,
                                  .document = profiles_,
                                  .edits = editing_->History(),
                                  .window = *this})),
      settingsActions_(new SettingsActions({.selected = [this] { return pane_->Selected(); },
                                            .watch = live_->Watch(),
                                            .work = *work_,
                                            .window = *this})),
      dialogs_(std::make_unique<DialogKeeper>(*this, settings)) {
  InstallAccessibility();  // the panels have lists
  setCentralWidget(pane_);
  MakeDocks(*this, *alerts_, *faults_, *log_);
  MakeMenus(*this, {.pane = *pane_,
                    .log = *log_,
                    .editing = *editing_,
                    .usual = *usual_,
                    .presets = *presets_,
                    .settings = *settingsActions_,
                    .open = [this] { OpenSelected(); },
                    .refresh =
                        [this] {
                          for (const ProjectorRow* row : pane_->Selected())
                            live_->Watch().Projectors().AskSoon(row->id);
                        },
                    .preferences = settings == nullptr ? std::function<void()>()
                                                       : [this] { ShowPreferences(); }});
  Connect();
  ConnectAlerts();
  ShowProfiles();
  if (const int first = FirstSelected(profiles_.Projectors(), memory_.LastProjector()); first >= 0)
    pane_->View().Select(first);
  memory_.Restore(*this, *pane_, *log_, *alerts_);
  pane_->View().FocusTable();
}

// Destroys the users of the projectors before the projectors.
MainWindow::~MainWindow() {
  faults_->SetSession(nullptr);
  delete work_;
  dialogs_->CloseAll();
  delete takeCentralWidget();
  dialogs_.reset();
  delete live_;
}

void MainWindow::Connect() {
  if (const std::string problem = CatalogProblem(); !problem.empty()) {
    statusBar()->addWidget(new QLabel(QString::fromStdString(problem)));
  }
  connect(qApp, &QGuiApplication::commitDataRequest, this, &MainWindow::Remember);
  auto* status = new FleetSummary;
  statusBar()->addPermanentWidget(status);
  connect(pane_, &ListPane::Counted, status, &FleetSummary::Show);
  connect(work_, &WorkActions::Reported, this,
          [this](const QString& text) { statusBar()->showMessage(text, kMessageTime); });
  connect(log_, &CommandLog::Updated, faults_, &FaultPanel::RefreshStates);
  connect(faults_, &FaultPanel::Changed, this,
          [this](const ProjectorSession* session) { live_->TakeSimulation(*session); });
  connect(live_, &LiveProjectors::Changed, pane_, &ListPane::Refresh);
  connect(&pane_->View(), &ProjectorView::Activated, this, &MainWindow::OpenSelected);
  connect(&pane_->View(), &ProjectorView::SelectionChanged, this, &MainWindow::TakeSelection);
  connect(findChild<QDockWidget*>(QStringLiteral("simulation")), &QDockWidget::visibilityChanged,
          this, &MainWindow::TakeSelection);
  connect(&editing_->History(), &ProfileHistory::Changed, this, [this](int selected) {
    ShowProfiles();
    presets_->Drift().TakeProfiles();
    if (selected >= 0) pane_->View().Select(selected);
  });
  connect(presets_, &PresetActions::Saved, dialogs_.get(), &DialogKeeper::UpdateAll);
  connect(&presets_->Drift(), &DriftCheck::Checked, this, &MainWindow::ShowLastSeen);
  // By its own profile, because the list may have another one for the projector already.
  const auto setOpen = [this](const ProjectorSession* session, bool isOpen) {
    std::string id = FleetIdOf(session->Profile());
    const int position = pane_->View().Model().Find(id);
    if (position >= 0)
      pane_->View().Model().Change(position, [isOpen](ProjectorRow& row) { row.isOpen = isOpen; });
    return id;
  };
  connect(dialogs_.get(), &DialogKeeper::Opened, this,
          [this, setOpen](const ProjectorSession* session) {
            const std::string id = setOpen(session, true);
            live_->Watch().LeaveToDialog(id);
            ShowLastSeen(id);
          });
  connect(dialogs_.get(), &DialogKeeper::Closed, this,
          [this, setOpen](const ProjectorSession* session) {
            const std::string id = setOpen(session, false);
            live_->Watch().TakeBack(id);
            presets_->Drift().Check({id});
          });
}

void MainWindow::ShowLastSeen(const std::string& id) {
  const int position = pane_->View().Model().Find(id);
  if (position < 0) return;
  const auto place = static_cast<std::size_t>(position);
  if (!pane_->View().Model().All()[place].isOpen) return;
  if (CAdvanceDlg* dialog = Dialog(place)) dialog->SetLastSeen(presets_->Drift().LastSeen(id));
}

void MainWindow::ConnectAlerts() {
  alerts_->SetRules(AlertRules::Read(memory_.Settings()));
  connect(pane_, &ListPane::Counted, this, [this](const std::vector<ProjectorRow>& rows) {
    alerts_->Look(rows, std::chrono::steady_clock::now());
  });
  connect(alerts_, &AlertList::Changed, this, [this] {
    pane_->MarkAlerts(alerts_->Open());
    memory_.StoreAcknowledged(*alerts_);
  });
  connect(alerts_, &AlertList::Activated, this, [this](const std::string& id) {
    if (const int position = pane_->View().Model().Find(id); position >= 0)
      pane_->View().Select(position);
  });
  connect(alerts_, &AlertList::Raised, this, [this](const QStringList& texts) {
    const AlertRules rules = AlertRules::Read(memory_.Settings());
    if (memory_.Settings() != nullptr && rules.notifies && !rules.IsQuiet(QTime::currentTime()))
      Notify(*this, texts);
  });
}

// A session is only made for a simulation that is shown.
void MainWindow::TakeSelection() {
  const ProjectorRow* only = pane_->OnlySelected();
  const auto* dock = findChild<QDockWidget*>(QStringLiteral("simulation"));
  const bool isWanted = only != nullptr && dock->isVisible();
  faults_->SetSession(isWanted ? live_->Session(only->profile).get() : nullptr);
  const bool any = pane_->View().SelectedCount() > 0;
  editing_->Update();
  settingsActions_->Update(any);
  usual_->Update(any);
  presets_->Update(any);
}

void MainWindow::ShowPreferences() {
  auto* dialog = new Preferences(*memory_.Settings(), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this] {
    alerts_->SetRules(AlertRules::Read(memory_.Settings()));
    live_->Watch().SetInterval(std::chrono::seconds(Preferences::Interval(memory_.Settings())));
  });
  dialog->open();
}

void MainWindow::ShowProfiles() {
  faults_->SetSession(nullptr);
  for (const auto& session : live_->SetProfiles(profiles_.Projectors())) dialogs_->Close(*session);
  dialogs_->UpdateAll();
  pane_->SetProfiles(profiles_.Projectors());
  memory_.StoreFile(profiles_.FileName());
  TakeSelection();
  setWindowTitle(profiles_.HasFile()
                     ? tr("Advanced Control: %1").arg(QFileInfo(profiles_.FileName()).fileName())
                     : tr("Advanced Control"));
}

// While a dialog is being read, the list may change and the window may be closed.
void MainWindow::OpenSelected() {
  std::vector<std::string> ids;
  for (const ProjectorRow* row : pane_->Selected()) ids.push_back(row->id);
  const auto open = [this, ids] {
    for (const std::string& id : ids) {
      const int position = pane_->View().Model().Find(id);
      if (position < 0 || !isVisible()) continue;
      dialogs_->Open(*Session(static_cast<std::size_t>(position)));
    }
  };
  if (ids.size() <= kOpenedUnasked) return open();
  auto* question = new QMessageBox(QMessageBox::Question, tr("Open Settings"),
                                   tr("Open %n dialogs?", nullptr, static_cast<int>(ids.size())),
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
  pane_->View().Select(static_cast<int>(projector));
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
  if (simulated.size() == profiles_.Projectors().size())
    pane_->OfferRealOnes({editing_->Transfers().Find(), editing_->Projectors().Add()});
}

void MainWindow::Remember() const { memory_.Store(*this, *pane_, *log_); }

void MainWindow::closeEvent(QCloseEvent* event) {
  Remember();
  // Abandons commands that wait. All event loops then end, also those of messages and pop-ups; the
  // dialogs are deleted with this window.
  dialogs_->RejectAll();
  event->accept();
  QCoreApplication::exit();
}
