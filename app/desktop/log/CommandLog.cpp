#include "app/desktop/log/CommandLog.h"

#include <numeric>
#include <utility>

#include <QAction>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/desktop/Mnemonic.h"
#include "app/desktop/Modal.h"
#include "app/desktop/log/LogTable.h"
#include "app/desktop/log/SettingNames.h"
#include "fleet/WholeFile.h"
#include "toolkit/CComboBox.h"
#include "toolkit/Icons.h"

namespace {

constexpr int kLeastFilter = 14;  // characters
constexpr auto kGatherTime = std::chrono::milliseconds(40);

QToolButton* ButtonOf(QAction* action) {
  action->setIconText(WithoutMnemonic(action->text()));
  auto* button = new QToolButton;
  button->setDefaultAction(action);
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

}  // namespace

CommandLog::CommandLog(QWidget* parent)
    : QWidget(parent),
      model_(new CommandLogModel(this)),
      shown_(new CommandLogFilter(*model_, this)),
      view_(new LogTable(*shown_)),
      changesOnly_(new QAction(tr("Changes &Only"), this)),
      errorsOnly_(new QAction(tr("&Errors Only"), this)),
      saveAs_(new QAction(tr("Save &Log As…"), this)),
      clear_(new QAction(tr("Clea&r Log…"), this)),
      filter_(new QLineEdit),
      projectors_(new CComboBox) {
  view_->setAccessibleName(tr("Command log"));
  changesOnly_->setCheckable(true);
  changesOnly_->setToolTip(tr("Leave out the commands that only read"));
  errorsOnly_->setCheckable(true);
  errorsOnly_->setToolTip(tr("Leave out the commands that were carried out"));
  auto* copy = new QAction(tr("&Copy"), this);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);
  view_->addAction(copy);
  view_->addActions({changesOnly_, errorsOnly_, saveAs_, clear_});
  view_->setContextMenuPolicy(Qt::ActionsContextMenu);

  filter_->setPlaceholderText(tr("Projector, setting, command or result"));
  filter_->setAccessibleName(tr("Filter the log"));
  filter_->setClearButtonEnabled(true);
  filter_->setMinimumWidth(filter_->fontMetrics().averageCharWidth() * kLeastFilter);
  auto* head = new QHBoxLayout;
  projectors_->addItem(tr("All projectors"));
  projectors_->Select(0);
  projectors_->setAccessibleName(tr("Projector whose commands are shown"));
  head->addWidget(filter_, 1);
  head->addWidget(projectors_);
  for (QAction* action : {changesOnly_, errorsOnly_, saveAs_, clear_})
    head->addWidget(ButtonOf(action));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(head);
  layout->addWidget(view_);

  connect(changesOnly_, &QAction::toggled, shown_, &CommandLogFilter::ShowChangesOnly);
  connect(errorsOnly_, &QAction::toggled, shown_, &CommandLogFilter::ShowErrorsOnly);
  connect(filter_, &QLineEdit::textChanged, shown_, &CommandLogFilter::ShowOnly);
  connect(projectors_, &QComboBox::activated, this, [this](int chosen) {
    shown_->ShowProjector(chosen == 0 ? QString() : projectors_->itemText(chosen));
  });
  connect(copy, &QAction::triggered, view_, &LogTable::CopySelected);
  connect(saveAs_, &QAction::triggered, this, &CommandLog::AskAndSave);
  connect(clear_, &QAction::triggered, this, &CommandLog::AskAndClear);
  gather_.setSingleShot(true);
  gather_.setInterval(kGatherTime);
  connect(&gather_, &QTimer::timeout, this, &CommandLog::ShowPending);
}

CommandLog::~CommandLog() = default;

void CommandLog::Add(const FleetProfile& profile, const PjtCommand& command, const PjtReply& reply,
                     std::chrono::microseconds elapsed) {
  if (!names_) names_ = std::make_unique<SettingNames>();
  SettingNames::Meaning meaning = names_->Of(profile.model, command, reply);
  Add({QDateTime::currentDateTime(), QString::fromStdString(profile.name),
       std::move(meaning.setting), std::move(meaning.value), command, reply, elapsed});
}

// The list of projectors has those that occur in the log.
void CommandLog::AddProjectors(const std::vector<CommandLogModel::Entry>& entries) {
  for (const CommandLogModel::Entry& entry : entries) {
    if (projectors_->findText(entry.projector) < 0) projectors_->addItem(entry.projector);
  }
}

void CommandLog::Add(CommandLogModel::Entry entry) {
  pending_.push_back(std::move(entry));
  if (!gather_.isActive()) gather_.start();
}

void CommandLog::Clear() {
  pending_.clear();
  model_->Clear();
}

void CommandLog::ShowPending() {
  const QScrollBar* bar = view_->verticalScrollBar();
  const bool follows = bar->value() == bar->maximum();
  AddProjectors(pending_);
  model_->Append(std::exchange(pending_, {}));
  if (follows) view_->scrollToBottom();
  Q_EMIT Updated();
}

QString CommandLog::Save(const QString& fileName) const {
  QStringList titles;
  for (int column = 0; column < CommandLogModel::ColumnCount; ++column) {
    titles += model_->headerData(column, Qt::Horizontal).toString();
  }
  std::vector<int> rows(static_cast<std::size_t>(shown_->rowCount()));
  std::iota(rows.begin(), rows.end(), 0);
  const QByteArray text =
      (titles.join(QLatin1Char('\t')) + QLatin1Char('\n') + LogText(*shown_, rows)).toUtf8();
  return WriteWholeFile(fileName, text);
}

void CommandLog::AskAndSave() {
  AskForFile(*this,
             {.kind = FileQuestion::Kind::Save,
              .title = tr("Save Log"),
              .suggestion = "commands.tsv",
              .filter = tr("Tables (*.tsv);;All files (*)")},
             [this](const QString& path) {
               const QString error = Save(path);
               if (!error.isEmpty()) return ShowError(*this, tr("Save Log"), error);
               ShowSaved(*this, path);
             });
}

void CommandLog::AskAndClear() {
  if (model_->rowCount() == 0) return;
  auto* question =
      new QMessageBox(QMessageBox::Question, tr("Clear Log"),
                      tr("Remove all %n entries of the log?", nullptr, model_->rowCount()),
                      QMessageBox::NoButton, this);
  question->setAttribute(Qt::WA_DeleteOnClose);
  const QPushButton* clear = question->addButton(tr("Clear"), QMessageBox::DestructiveRole);
  question->setDefaultButton(question->addButton(QMessageBox::Cancel));
  connect(question, &QDialog::finished, this, [this, question, clear] {
    if (question->clickedButton() == clear) Clear();
  });
  RemoveForeignButtonIcons(*question);
  question->open();
}
