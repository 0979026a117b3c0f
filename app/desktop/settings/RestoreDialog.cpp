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

#include "app/desktop/settings/AfreshChannel.h"
#include "app/desktop/settings/OutcomeTable.h"
#include "app/profiles/SettingsFile.h"
#include "device/ModelDataIntake.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"
#include "toolkit/IsolatedText.h"

namespace {

constexpr QSize kUsualSize{720, 560};
constexpr QSize kFrame{10, 40};  // before it is known

QString Wide(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

/// A projector with its part of the table.
struct RestoreDialog::Room {
  explicit Room(std::shared_ptr<ProjectorSession> projector)
      : session(std::move(projector)),
        name(session->Profile().Name),
        settings(MakeModelData(session->Model())) {}

  /// For each piece of work: one that was gone before may be back.
  void Connect(const std::function<bool()>& goesOn) {
    if (channel && !channel->IsGone()) return;
    channel = MakePatient(*session, goesOn);
    connection.SetChannel(channel);
  }

  std::shared_ptr<ProjectorSession> session;
  std::string name;
  ModelSettings settings;
  std::shared_ptr<PatientChannel> channel;
  CPjtInterface connection;
  std::optional<Restoration> restoration;
  std::optional<int> beforehandRow;  ///< Of all that is put back beforehand.
  int firstRow = 0;                  ///< Of the settings.
};

/// While it lives the dialog can be stopped, but not be asked for anything else.
class RestoreDialog::Working {
 public:
  Working(RestoreDialog& dialog, int steps) : dialog_(dialog) {
    dialog_.working_ = true;
    dialog_.stopped_ = false;
    dialog_.progress_->setRange(0, std::max(steps, 1));
    dialog_.progress_->setValue(0);
    dialog_.UpdateButtons();
  }
  ~Working() {
    dialog_.working_ = false;
    dialog_.progress_->setValue(dialog_.progress_->maximum());
    dialog_.UpdateButtons();
  }
  Working(const Working&) = delete;
  Working& operator=(const Working&) = delete;

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
    rooms_.push_back(std::make_unique<Room>(session));
  }
  setWindowTitle(purpose == Purpose::Restore ? tr("Apply Settings") : tr("Compare Settings"));
  Lay();
  UpdateButtons();
}

RestoreDialog::~RestoreDialog() = default;

void RestoreDialog::Lay() {
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
  table_->setColumnHidden(OutcomeTable::kProjector, rooms_.size() == 1);
  // The keyboard begins at what is checked.
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

// Enter presses the button that has the focus, and none from the filter or the table.
void RestoreDialog::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && qobject_cast<QPushButton*>(focusWidget()) == nullptr) return;
  QDialog::keyPressEvent(event);
}

// The first press stops the work, and another one leaves.
void RestoreDialog::reject() {
  stopped_ = true;
  if (!working_) QDialog::reject();
}

void RestoreDialog::UpdateButtons() {
  close_->setText(working_ ? tr("Stop") : tr("Close"));
  for (QPushButton* button : {compare_, restore_}) button->setEnabled(!working_ && compared_);
}

Progress RestoreDialog::WorkOn(Room& room) {
  room.Connect([this] { return !stopped_; });
  return {.goesOn = [this, &room] { return !stopped_ && !room.channel->IsGone(); },
          .step =
              [this] {
                progress_->setValue(progress_->value() + 1);
                QCoreApplication::processEvents();
              }};
}

// What somebody has taken the check from stays so.
void RestoreDialog::Compare() {
  if (working_) return;
  compared_ = true;
  const Working working(*this, static_cast<int>(rooms_.size() * snapshot_.settings.size()));
  std::set<int> unwanted;
  for (int row = 0; row < model_->rowCount(); ++row) {
    const Outcome outcome = model_->OutcomeOf(row);
    const bool isOpen = outcome == Outcome::Differs || outcome == Outcome::NotReached;
    if (isOpen && model_->IsCheckable(row) && !model_->IsChecked(row)) unwanted.insert(row);
  }
  model_->setRowCount(0);
  for (const auto& room : rooms_) {
    room->restoration.emplace(snapshot_, room->settings, room->connection);
    room->restoration->Read(WorkOn(*room));
    if (purpose_ == Purpose::Restore && !snapshot_.beforehand.empty()) AddBeforehandRow(*room);
    room->firstRow = model_->rowCount();
    for (const RestoredSetting& restored : room->restoration->Settings()) AddRow(*room, restored);
  }
  for (const int row : unwanted) model_->Uncheck(row);
  ShowSummary();
}

void RestoreDialog::ShowSummary() {
  summary_->setText(model_->Summary());
  // Not while rows are filled: measuring them all for each text would take long.
  for (int i = 0; i < OutcomeTable::kColumnCount; ++i) table_->resizeColumnToContents(i);
}

void RestoreDialog::AddRow(const Room& room, const RestoredSetting& restored) {
  const SavedSetting& saved = restored.saved;
  QString setting = Wide(saved.key);
  if (restored.setting != nullptr) {
    setting = tr("%1: %2").arg(Wide(texts_.Tab(*restored.setting)),
                               Wide(texts_.Name(room.settings, *restored.setting, saved.source)));
  } else if (saved.source) {
    setting += QStringLiteral(" (%1)").arg(Wide(texts_.Source(room.settings, *saved.source)));
  }
  const bool isOpen = purpose_ == Purpose::Restore && restored.outcome == Outcome::Differs;
  ShowOutcome(restored, model_->Append(Wide(room.name), setting, Wide(saved.key), isOpen));
}

// Some of it makes no sense without the rest, and none can be compared before it is its turn.
void RestoreDialog::AddBeforehandRow(Room& room) {
  room.beforehandRow =
      model_->Append(Wide(room.name), tr("Beforehand: other sources and modes"), {}, true);
  model_->SetValues(*room.beforehandRow, {},
                    tr("%1 settings").arg(static_cast<int>(snapshot_.beforehand.size())));
  ShowBeforehand(*room.restoration, *room.beforehandRow);
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

/// What is worst of it.
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
  const Working working(*this, steps);
  QString error;
  for (const auto& room : rooms_) {
    if (!stopped_ && error.isEmpty()) error = RestoreRoom(*room);
  }
  ShowSummary();
  if (!error.isEmpty()) summary_->setText(error);
}

// Reads once more what is checked: somebody may have changed it since.
QString RestoreDialog::RestoreRoom(Room& room) {
  // A file may hold a setting for several input sources.
  std::map<std::pair<std::string, std::optional<int>>, int> rows;
  const auto idOf = [](const SavedSetting& saved) { return std::pair(saved.key, saved.source); };
  const auto& known = room.restoration->Settings();
  for (std::size_t i = 0; i < known.size(); ++i) {
    const int row = room.firstRow + static_cast<int>(i);
    if (model_->IsChecked(row)) rows[idOf(known[i].saved)] = row;
  }
  Snapshot wanted = snapshot_;
  if (!room.beforehandRow || !model_->IsChecked(*room.beforehandRow)) wanted.beforehand.clear();
  Restoration part(wanted, room.settings, room.connection,
                   [&](const SavedSetting& saved) { return rows.contains(idOf(saved)); });
  const Progress progress = WorkOn(room);
  part.Read(progress);
  UndoFile undo(file_, {}, room.name);
  part.Send(texts_, progress, [&] { return undo.Keep(part.Undo(room.name, texts_)); });
  if (!wanted.beforehand.empty()) {
    ShowBeforehand(part, *room.beforehandRow);
    model_->UncheckDone(*room.beforehandRow);
  }
  for (const RestoredSetting& restored : part.Settings()) {
    const int row = rows.at(idOf(restored.saved));
    ShowOutcome(restored, row);
    model_->UncheckDone(row);
  }
  return undo.Error();
}
