#include "app/desktop/settings/RestoreDialog.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include "app/desktop/settings/OutcomeTable.h"
#include "app/desktop/settings/RetryAfterSilenceChannel.h"
#include "app/profiles/SettingsFile.h"
#include "device/ModelDataIntake.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"
#include "toolkit/Icons.h"
#include "toolkit/IsolatedText.h"

namespace {

constexpr QSize kUsualSize{720, 560};
constexpr QSize kFrame{10, 40};  // a guess until it is shown

QString Wide(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

/// A projector with its rows of the table.
struct RestoreDialog::ProjectorPart {
  explicit ProjectorPart(std::shared_ptr<ProjectorSession> projector)
      : session(std::move(projector)),
        name(session->Profile().name),
        settings(MakeModelData(session->Model())) {}

  /// Called for each piece of work, because a projector that was gone may be back.
  void Connect(const std::function<bool()>& goesOn) {
    if (channel && !channel->IsGone()) return;
    channel = MakePatientChannel(*session, goesOn);
    connection.SetChannel(channel);
  }

  std::shared_ptr<ProjectorSession> session;
  std::string name;
  ModelSettings settings;
  std::shared_ptr<PatientChannel> channel;
  CPjtInterface connection;
  std::optional<Restoration> restoration;
  std::optional<int> beforehandRow;  ///< Row for all settings that are restored before the others.
  int firstRow = 0;                  ///< First row of the other settings.
};

/// Marks the dialog as working while it exists: only stopping is possible.
class RestoreDialog::WorkingScope {
 public:
  WorkingScope(RestoreDialog& dialog, int steps) : dialog_(dialog) {
    dialog_.working_ = true;
    dialog_.stopped_ = false;
    dialog_.progress_->setRange(0, std::max(steps, 1));
    dialog_.progress_->setValue(0);
    dialog_.UpdateButtons();
  }
  ~WorkingScope() {
    dialog_.working_ = false;
    dialog_.progress_->setValue(dialog_.progress_->maximum());
    dialog_.UpdateButtons();
  }
  WorkingScope(const WorkingScope&) = delete;
  WorkingScope& operator=(const WorkingScope&) = delete;

 private:
  RestoreDialog& dialog_;
};

RestoreDialog::RestoreDialog(Purpose purpose, Snapshot snapshot, QString file,
                             const ProjectorSessions& sessions, WhenQuiet whenQuiet,
                             QWidget* parent)
    : QDialog(parent),
      purpose_(purpose),
      snapshot_(std::move(snapshot)),
      file_(std::move(file)),
      whenQuiet_(std::move(whenQuiet)),
      texts_(CatalogFolders(), SystemLanguageId()) {
  for (const auto& session : sessions) {
    projectors_.push_back(std::make_unique<ProjectorPart>(session));
  }
  setWindowTitle(purpose == Purpose::Restore ? tr("Apply Settings") : tr("Compare Settings"));
  CreateLayout();
  UpdateButtons();
}

RestoreDialog::~RestoreDialog() = default;

void RestoreDialog::CreateLayout() {
  filter_ = new QLineEdit;
  filter_->setPlaceholderText(tr("Filter"));
  filter_->setAccessibleName(tr("Filter"));
  filter_->setClearButtonEnabled(true);
  differencesOnly_ = new QCheckBox(tr("&Differences only"));
  differencesOnly_->setChecked(true);
  auto* tools = new QHBoxLayout;
  tools->addWidget(filter_, 1);
  tools->addWidget(differencesOnly_);

  model_ = new OutcomeTable(this);
  auto* shown = new OutcomeFilter(this);
  shown->setSourceModel(model_);
  shown->setFilterKeyColumn(-1);
  shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
  table_ = new QTreeView;
  table_->setModel(shown);
  table_->setItemDelegate(new IsolatedTexts(table_));
  table_->setRootIsDecorated(false);
  table_->setUniformRowHeights(true);
  table_->setEditTriggers(QTreeView::NoEditTriggers);
  table_->setAccessibleName(tr("Settings"));
  table_->setColumnHidden(OutcomeTable::kProjector, projectors_.size() == 1);
  // The keyboard starts in the first column, which must be the one with the check boxes.
  table_->header()->moveSection(OutcomeTable::kSetting, OutcomeTable::kProjector);

  progress_ = new QProgressBar;
  progress_->setTextVisible(false);
  progress_->setAccessibleName(tr("Progress"));
  summary_ = new QLabel;
  summary_->setWordWrap(true);
  summary_->setTextFormat(Qt::PlainText);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  close_ = buttons->button(QDialogButtonBox::Close);
  compare_ = buttons->addButton(tr("&Compare Again"), QDialogButtonBox::ActionRole);
  restore_ = buttons->addButton(tr("&Apply"), QDialogButtonBox::ApplyRole);
  restore_->setVisible(purpose_ == Purpose::Restore);

  resize(kUsualSize.boundedTo(screen()->availableGeometry().size() - kFrame));
  auto* file = new QLabel(fontMetrics().elidedText(file_, Qt::ElideMiddle, width() * 9 / 10));
  file->setTextFormat(Qt::PlainText);
  file->setToolTip(file_.toHtmlEscaped());
  file->setAccessibleName(file_);

  auto* column = new QVBoxLayout(this);
  column->addWidget(file);
  column->addLayout(tools);
  column->addWidget(table_, 1);
  column->addWidget(progress_);
  column->addWidget(summary_);
  column->addWidget(buttons);
  RemoveForeignButtonIcons(*this);

  connect(filter_, &QLineEdit::textChanged, shown, &OutcomeFilter::setFilterFixedString);
  connect(differencesOnly_, &QCheckBox::toggled, this, [shown](bool on) { shown->HideSame(on); });
  connect(compare_, &QPushButton::clicked, this, [this] { Start(&RestoreDialog::Compare); });
  connect(restore_, &QPushButton::clicked, this, [this] { Start(&RestoreDialog::Restore); });
  connect(buttons, &QDialogButtonBox::rejected, this, &RestoreDialog::reject);
}

void RestoreDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!compared_) QTimer::singleShot(0, this, [this] { Start(&RestoreDialog::Compare); });
}

void RestoreDialog::Start(void (RestoreDialog::*work)()) {
  const bool begun = whenQuiet_(this, [this, work] {
    summary_->clear();
    (this->*work)();
  });
  if (!begun) summary_->setText(tr("Waiting for the projector of an open dialog…"));
}

// Enter presses only a button that has the focus; in the filter and the table it presses none.
void RestoreDialog::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && qobject_cast<QPushButton*>(focusWidget()) == nullptr) return;
  QDialog::keyPressEvent(event);
}

// The first Close or Esc stops the work; the next one closes the dialog.
void RestoreDialog::reject() {
  stopped_ = true;
  if (!working_) QDialog::reject();
}

void RestoreDialog::UpdateButtons() {
  close_->setText(working_ ? tr("Stop") : tr("Close"));
  for (QPushButton* button : {compare_, restore_}) button->setEnabled(!working_ && compared_);
}

Progress RestoreDialog::WorkOn(ProjectorPart& projector) {
  projector.Connect([this] { return !stopped_; });
  return {.goesOn = [this, &projector] { return !stopped_ && !projector.channel->IsGone(); },
          .step =
              [this] {
                progress_->setValue(progress_->value() + 1);
                QCoreApplication::processEvents();
              }};
}

// Rows that the user has unchecked stay unchecked.
void RestoreDialog::Compare() {
  if (working_) return;
  compared_ = true;
  const WorkingScope working(*this,
                             static_cast<int>(projectors_.size() * snapshot_.settings.size()));
  std::set<int> unwanted;
  for (int row = 0; row < model_->rowCount(); ++row) {
    const Outcome outcome = model_->OutcomeOf(row);
    const bool isOpen = outcome == Outcome::Differs || outcome == Outcome::NotReached;
    if (isOpen && model_->IsCheckable(row) && !model_->IsChecked(row)) unwanted.insert(row);
  }
  model_->setRowCount(0);
  for (const auto& projector : projectors_) {
    projector->restoration.emplace(snapshot_, projector->settings, projector->connection);
    projector->restoration->Read(WorkOn(*projector));
    if (purpose_ == Purpose::Restore && !snapshot_.beforehand.empty()) AddBeforehandRow(*projector);
    projector->firstRow = model_->rowCount();
    for (const RestoredSetting& restored : projector->restoration->Settings())
      AddRow(*projector, restored);
  }
  for (const int row : unwanted) model_->Uncheck(row);
  ShowSummary();
}

void RestoreDialog::ShowSummary() {
  summary_->setText(model_->Summary());
  // Done once at the end; measuring all rows after each change would be slow.
  for (int i = 0; i < OutcomeTable::kColumnCount; ++i) table_->resizeColumnToContents(i);
}

void RestoreDialog::AddRow(const ProjectorPart& projector, const RestoredSetting& restored) {
  const SavedSetting& saved = restored.saved;
  QString setting = Wide(saved.key);
  if (restored.setting != nullptr) {
    setting =
        tr("%1: %2").arg(Wide(texts_.Tab(*restored.setting)),
                         Wide(texts_.Name(projector.settings, *restored.setting, saved.source)));
  } else if (saved.source) {
    setting += QStringLiteral(" (%1)").arg(Wide(texts_.Source(projector.settings, *saved.source)));
  }
  const bool isOpen = purpose_ == Purpose::Restore && restored.outcome == Outcome::Differs;
  ShowOutcome(restored, model_->Append(Wide(projector.name), setting, Wide(saved.key), isOpen));
}

// One row for them all: some are useless without the others, and none can be compared before it is
// restored.
void RestoreDialog::AddBeforehandRow(ProjectorPart& projector) {
  projector.beforehandRow =
      model_->Append(Wide(projector.name), tr("Beforehand: other sources and modes"), {}, true);
  model_->SetValues(*projector.beforehandRow, {},
                    tr("%n settings", nullptr, static_cast<int>(snapshot_.beforehand.size())));
  ShowBeforehand(*projector.restoration, *projector.beforehandRow);
}

void RestoreDialog::ShowOutcome(const RestoredSetting& restored, int row) {
  const auto text = [&](const std::optional<int>& value) {
    return value && restored.setting != nullptr ? Wide(texts_.Value(*restored.setting, *value))
                                                : QString();
  };
  const bool isKnown = restored.now || restored.outcome != Outcome::Unconfirmed;
  const std::optional<int>& here = restored.now ? restored.now : restored.before;
  model_->SetValues(
      row, isKnown ? text(here) : QString(),
      restored.setting != nullptr ? text(restored.saved.value) : Wide(restored.saved.text));
  model_->SetOutcome(row, restored.outcome);
}

/// Shows the worst outcome among them.
void RestoreDialog::ShowBeforehand(const Restoration& restoration, int row) {
  const auto& all = restoration.Beforehand();
  Outcome worst = Outcome::AlreadySo;
  for (const Outcome outcome :
       {Outcome::Changed, Outcome::NotAllowed, Outcome::NotSettable, Outcome::NotOffered,
        Outcome::Unknown, Outcome::NotReached, Outcome::Differs, Outcome::Pending,
        Outcome::Unconfirmed, Outcome::Busy, Outcome::Refused}) {
    if (std::ranges::find(all, outcome, &RestoredSetting::outcome) != all.end()) worst = outcome;
  }
  model_->SetOutcome(row, worst);
}

void RestoreDialog::Restore() {
  if (working_) return;
  int steps = 0;
  for (int row = 0; row < model_->rowCount(); ++row) steps += model_->IsChecked(row) ? 3 : 0;
  const WorkingScope working(*this, steps);
  QString error;
  for (const auto& projector : projectors_) {
    if (!stopped_ && error.isEmpty()) error = RestoreProjector(*projector);
  }
  ShowSummary();
  if (!error.isEmpty()) summary_->setText(error);
}

// Reads the checked settings again, because they may have changed since the comparison.
QString RestoreDialog::RestoreProjector(ProjectorPart& projector) {
  // A file may hold a setting for several input sources.
  std::map<std::pair<std::string, std::optional<int>>, int> rows;
  const auto idOf = [](const SavedSetting& saved) { return std::pair(saved.key, saved.source); };
  const auto& known = projector.restoration->Settings();
  for (std::size_t i = 0; i < known.size(); ++i) {
    const int row = projector.firstRow + static_cast<int>(i);
    if (model_->IsChecked(row)) rows[idOf(known[i].saved)] = row;
  }
  Snapshot wanted = snapshot_;
  if (!projector.beforehandRow || !model_->IsChecked(*projector.beforehandRow))
    wanted.beforehand.clear();
  Restoration part(wanted, projector.settings, projector.connection,
                   [&](const SavedSetting& saved) { return rows.contains(idOf(saved)); });
  const Progress progress = WorkOn(projector);
  part.Read(progress);
  UndoFile undo(file_, {}, projector.name);
  part.Send(texts_, progress, [&] { return undo.Keep(part.Undo(projector.name, texts_)); });
  if (!wanted.beforehand.empty()) {
    ShowBeforehand(part, *projector.beforehandRow);
    model_->UncheckDone(*projector.beforehandRow);
  }
  for (const RestoredSetting& restored : part.Settings()) {
    const int row = rows.at(idOf(restored.saved));
    ShowOutcome(restored, row);
    model_->UncheckDone(row);
  }
  return undo.Error();
}
