#include "app/host/RestoreDialog.h"

#include <algorithm>
#include <array>
#include <map>
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
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include "app/host/AfreshChannel.h"
#include "app/profiles/SettingsFile.h"
#include "device/ModelDataIntake.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"
#include "toolkit/IsolatedText.h"

namespace {

enum Column { kProjector, kSetting, kHere, kFile, kResult, kColumnCount };
constexpr int kOutcomeRole = Qt::UserRole;
constexpr QSize kUsualSize{720, 560};
constexpr QSize kFrame{10, 40};  // before it is known

/// Rows whose outcome asks for a look, and whose text has what was typed.
class OutcomeFilter : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  void HideSame(bool hide) {
    hidesSame_ = hide;
    invalidateFilter();
  }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
    const int outcome = sourceModel()->index(row, kResult).data(kOutcomeRole).toInt();
    const bool same = outcome == static_cast<int>(Outcome::AlreadySo);
    return !(hidesSame_ && same) && QSortFilterProxyModel::filterAcceptsRow(row, parent);
  }

 private:
  bool hidesSame_ = true;
};

QString Wide(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

/// A projector with its part of the table.
struct RestoreDialog::Room {
  Room(std::shared_ptr<ProjectorSession> projector, const Snapshot& snapshot)
      : session(std::move(projector)),
        name(session->Profile().Name),
        settings(MakeModelData(session->Profile().Model)) {
    restoration.emplace(snapshot, settings, connection);
  }

  /// For each piece of work: one that was gone before may be back.
  void Connect(const std::function<bool()>& goesOn) {
    if (channel && !channel->IsGone()) return;
    channel = MakePatient(session->Channel(), goesOn);
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
                             const ProjectorSessions& sessions, QWidget* parent)
    : QDialog(parent),
      purpose_(purpose),
      snapshot_(std::move(snapshot)),
      file_(std::move(file)),
      texts_(CatalogFolders(), SystemLanguageId()) {
  for (const auto& session : sessions) {
    rooms_.push_back(std::make_unique<Room>(session, snapshot_));
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

  model_ = new QStandardItemModel(0, kColumnCount, this);
  model_->setHorizontalHeaderLabels(
      {tr("Projector"), tr("Setting"), tr("Here"), tr("File"), tr("Result")});
  auto* shown = new OutcomeFilter(this);
  shown->setSourceModel(model_);
  shown->setFilterKeyColumn(-1);
  shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
  auto* table = new QTreeView;
  table->setModel(shown);
  table->setItemDelegate(new IsolatedTexts(table));
  table->setRootIsDecorated(false);
  table->setUniformRowHeights(true);
  table->setEditTriggers(QTreeView::NoEditTriggers);
  table->setAccessibleName(tr("Settings"));
  table->setColumnHidden(kProjector, rooms_.size() == 1);
  table->header()->moveSection(kSetting, kProjector);  // the keyboard begins at what is checked
  table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

  progress_ = new QProgressBar;
  progress_->setTextVisible(false);
  progress_->setAccessibleName(tr("Progress"));
  summary_ = new QLabel;
  summary_->setWordWrap(true);
  summary_->setTextFormat(Qt::PlainText);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  close_ = buttons->button(QDialogButtonBox::Close);
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
  column->addWidget(table, 1);
  column->addWidget(progress_);
  column->addWidget(summary_);
  column->addWidget(buttons);

  connect(filter_, &QLineEdit::textChanged, shown, &OutcomeFilter::setFilterFixedString);
  connect(differencesOnly_, &QCheckBox::toggled, this, [shown](bool on) { shown->HideSame(on); });
  connect(restore_, &QPushButton::clicked, this, &RestoreDialog::Restore);
  connect(buttons, &QDialogButtonBox::rejected, this, &RestoreDialog::reject);
}

void RestoreDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!compared_) QTimer::singleShot(0, this, &RestoreDialog::Compare);
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
  restore_->setEnabled(!working_ && compared_);
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

void RestoreDialog::Compare() {
  if (working_) return;
  compared_ = true;
  const Working working(*this, static_cast<int>(rooms_.size() * snapshot_.settings.size()));
  model_->setRowCount(0);
  for (const auto& room : rooms_) {
    room->restoration->Read(WorkOn(*room));
    if (purpose_ == Purpose::Restore && !snapshot_.beforehand.empty()) AddBeforehandRow(*room);
    room->firstRow = model_->rowCount();
    for (const RestoredSetting& restored : room->restoration->Settings()) AddRow(*room, restored);
  }
  ShowSummary();
}

void RestoreDialog::AddRow(const Room& room, const RestoredSetting& restored) {
  QString setting = Wide(restored.saved.key);
  if (restored.setting != nullptr) {
    setting = tr("%1: %2").arg(Wide(texts_.Tab(*restored.setting)),
                               Wide(texts_.Caption(*restored.setting)));
  }
  const bool differs = restored.outcome == Outcome::Differs;
  ShowOutcome(restored, AppendRow(room, setting, purpose_ == Purpose::Restore && differs));
}

// Some of it makes no sense without the rest, and none can be compared before it is its turn.
void RestoreDialog::AddBeforehandRow(Room& room) {
  room.beforehandRow = AppendRow(room, tr("Beforehand: other sources and modes"), true);
  model_->item(*room.beforehandRow, kFile)
      ->setText(tr("%1 settings").arg(static_cast<int>(snapshot_.beforehand.size())));
  ShowBeforehand(*room.restoration, *room.beforehandRow);
}

int RestoreDialog::AppendRow(const Room& room, const QString& setting, bool isCheckable) {
  QList<QStandardItem*> row;
  for (const QString& text : {Wide(room.name), setting, QString(), QString(), QString()}) {
    row.append(new QStandardItem(text));
  }
  row[kSetting]->setCheckable(isCheckable);
  if (isCheckable) row[kSetting]->setCheckState(Qt::Checked);
  model_->appendRow(row);
  return model_->rowCount() - 1;
}

void RestoreDialog::ShowOutcome(const RestoredSetting& restored, int row) {
  const auto text = [&](const std::optional<int>& value) {
    return value && restored.setting != nullptr ? Wide(texts_.Value(*restored.setting, *value))
                                                : QString();
  };
  const bool isKnown = restored.now || restored.outcome != Outcome::Unconfirmed;
  const std::optional<int>& here = restored.now ? restored.now : restored.before;
  model_->item(row, kHere)->setText(isKnown ? text(here) : QString());
  model_->item(row, kFile)
      ->setText(restored.setting != nullptr ? text(restored.saved.value)
                                            : Wide(restored.saved.text));
  ShowResult(restored.outcome, row);
}

/// What is worst of it.
void RestoreDialog::ShowBeforehand(const Restoration& restoration, int row) {
  const auto& all = restoration.Beforehand();
  Outcome worst = Outcome::AlreadySo;
  for (const Outcome outcome :
       {Outcome::Changed, Outcome::NotAllowed, Outcome::NotSettable, Outcome::NotOffered,
        Outcome::Unknown, Outcome::NotReached, Outcome::Differs, Outcome::Unconfirmed, Outcome::Refused}) {
    if (std::ranges::find(all, outcome, &RestoredSetting::outcome) != all.end()) worst = outcome;
  }
  ShowResult(worst, row);
}

void RestoreDialog::ShowResult(Outcome outcome, int row) {
  model_->item(row, kResult)->setText(OutcomeText(outcome));
  model_->item(row, kResult)->setData(static_cast<int>(outcome), kOutcomeRole);
}

QString RestoreDialog::OutcomeText(Outcome outcome) {
  switch (outcome) {
    case Outcome::NotReached:
      return tr("not read");
    case Outcome::AlreadySo:
      return tr("already so");
    case Outcome::Differs:
      return tr("different");
    case Outcome::Changed:
      return tr("changed");
    case Outcome::Refused:
      return tr("refused");
    case Outcome::Unconfirmed:
      return tr("not confirmed");
    case Outcome::Unknown:
      return tr("skipped: this model does not have it");
    case Outcome::NotOffered:
      return tr("skipped: this projector does not offer it");
    case Outcome::NotSettable:
      return tr("skipped: it is not one to put back");
    case Outcome::NotAllowed:
      return tr("skipped: this model does not take the value");
  }
  return {};
}

void RestoreDialog::Restore() {
  if (working_) return;
  int steps = 0;
  for (int row = 0; row < model_->rowCount(); ++row) steps += IsChecked(row) ? 3 : 0;
  const Working working(*this, steps);
  QString error;
  for (const auto& room : rooms_) {
    if (!stopped_ && error.isEmpty()) error = RestoreRoom(*room);
  }
  ShowSummary();
  if (!error.isEmpty()) summary_->setText(error);
}

bool RestoreDialog::IsChecked(int row) const {
  return model_->item(row, kSetting)->checkState() == Qt::Checked;
}

void RestoreDialog::UncheckDone(int row) {
  const auto outcome = static_cast<Outcome>(model_->item(row, kResult)->data(kOutcomeRole).toInt());
  if (outcome == Outcome::Changed || outcome == Outcome::AlreadySo) {
    model_->item(row, kSetting)->setCheckState(Qt::Unchecked);
  }
}

// Reads once more what is checked: somebody may have changed it since.
QString RestoreDialog::RestoreRoom(Room& room) {
  // A file may hold a setting for several input sources.
  std::map<std::pair<std::string, std::optional<int>>, int> rows;
  const auto idOf = [](const SavedSetting& saved) { return std::pair(saved.key, saved.source); };
  const auto& known = room.restoration->Settings();
  for (std::size_t i = 0; i < known.size(); ++i) {
    const int row = room.firstRow + static_cast<int>(i);
    if (IsChecked(row)) rows[idOf(known[i].saved)] = row;
  }
  Snapshot wanted = snapshot_;
  if (!room.beforehandRow || !IsChecked(*room.beforehandRow)) wanted.beforehand.clear();
  Restoration part(wanted, room.settings, room.connection,
                   [&](const SavedSetting& saved) { return rows.contains(idOf(saved)); });
  const Progress progress = WorkOn(room);
  part.Read(progress);
  UndoFile undo(file_, {}, room.name);
  part.Send(texts_, progress, [&] { return undo.Keep(part.Undo(room.name, texts_)); });
  if (!wanted.beforehand.empty()) {
    ShowBeforehand(part, *room.beforehandRow);
    UncheckDone(*room.beforehandRow);
  }
  for (const RestoredSetting& restored : part.Settings()) {
    const int row = rows.at(idOf(restored.saved));
    ShowOutcome(restored, row);
    UncheckDone(row);
  }
  return undo.Error();
}

void RestoreDialog::ShowSummary() {
  std::array<int, 10> counts{};
  for (int row = 0; row < model_->rowCount(); ++row) {
    ++counts[static_cast<std::size_t>(model_->item(row, kResult)->data(kOutcomeRole).toInt())];
  }
  const auto count = [&counts](Outcome outcome) {
    return counts[static_cast<std::size_t>(outcome)];
  };
  const int skipped = count(Outcome::Unknown) + count(Outcome::NotOffered) +
                      count(Outcome::NotSettable) + count(Outcome::NotAllowed);
  QStringList parts;
  const auto add = [&parts](int number, const QString& what) {
    if (number > 0) parts.append(what.arg(number));
  };
  add(count(Outcome::Changed), tr("%1 changed"));
  add(count(Outcome::Differs), tr("%1 different"));
  add(count(Outcome::AlreadySo), tr("%1 already so"));
  add(count(Outcome::Refused), tr("%1 refused"));
  add(count(Outcome::Unconfirmed), tr("%1 not confirmed"));
  add(count(Outcome::NotReached), tr("%1 not read"));
  add(skipped, tr("%1 skipped"));
  summary_->setText(parts.join(QStringLiteral(", ")));
}
