#include "app/desktop/log/CommandLog.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include <QAction>
#include <QClipboard>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPaintEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

#include "app/desktop/Mnemonic.h"
#include "app/desktop/Modal.h"
#include "fleet/WholeFile.h"
#include "toolkit/Icons.h"
#include "toolkit/IsolatedText.h"

namespace {

constexpr int kLeastFilter = 14;  // characters
constexpr auto kGatherTime = std::chrono::milliseconds(40);

// The widest usual text of each column.
constexpr std::array<const char*, CommandLogModel::ColumnCount> kWidthSamples{
    "00:00:00.000", "Projector 5-30 b", "Get User Gamma Point 8 0x30B1 ",
    "0xFFFF",       "not offered",      "2000.0"};

QToolButton* ButtonOf(QAction* action) {
  action->setIconText(WithoutMnemonic(action->text()));
  auto* button = new QToolButton;
  button->setDefaultAction(action);
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

}  // namespace

/// A table that aligns its rows at the bottom, so that the newest one is always at the same place.
class CommandLog::RowsAtFoot : public QTableView {
 protected:
  void updateGeometries() override {
    QTableView::updateGeometries();
    free_ = std::max(0, viewport()->height() - verticalHeader()->length());
    if (free_ > 0) verticalHeader()->setOffset(-free_);
  }

  void paintEvent(QPaintEvent* event) override {
    QPaintEvent rows(event->region() & viewport()->rect().adjusted(0, free_, 0, 0));
    QTableView::paintEvent(&rows);
  }

 private:
  int free_ = 0;
};

/// Shows the full text of a cell that is cut off as a tool tip.
class CommandLog::Cells : public IsolatedTexts {
 public:
  using IsolatedTexts::IsolatedTexts;

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const bool cutOff = sizeHint(option, index).width() > option.rect.width();
    if (event->type() != QEvent::ToolTip || !cutOff) {
      return IsolatedTexts::helpEvent(event, view, option, index);
    }
    QToolTip::showText(event->globalPos(), index.data().toString(), view);
    return true;
  }
};

CommandLog::CommandLog(QWidget* parent)
    : QWidget(parent),
      model_(new CommandLogModel(this)),
      shown_(new CommandLogFilter(this)),
      view_(new RowsAtFoot),
      changesOnly_(new QAction(tr("Changes &Only"), this)),
      errorsOnly_(new QAction(tr("&Errors Only"), this)),
      saveAs_(new QAction(tr("Save &Log As…"), this)),
      clear_(new QAction(tr("Clea&r Log…"), this)),
      filter_(new QLineEdit) {
  shown_->setSourceModel(model_);
  view_->setModel(shown_);
  view_->setItemDelegate(new Cells(view_));
  view_->setAccessibleName(tr("Command log"));
  view_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  view_->setSelectionBehavior(QTableView::SelectRows);
  view_->setTabKeyNavigation(false);
  view_->setShowGrid(false);
  view_->setWordWrap(false);
  MakeColumns();

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

  filter_->setPlaceholderText(tr("Projector, command or result"));
  filter_->setAccessibleName(tr("Filter the log"));
  filter_->setClearButtonEnabled(true);
  filter_->setMinimumWidth(filter_->fontMetrics().averageCharWidth() * kLeastFilter);
  auto* head = new QHBoxLayout;
  head->addWidget(filter_, 1);
  for (QAction* action : {changesOnly_, errorsOnly_, saveAs_, clear_})
    head->addWidget(ButtonOf(action));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(head);
  layout->addWidget(view_);

  connect(changesOnly_, &QAction::toggled, shown_, &CommandLogFilter::ShowChangesOnly);
  connect(errorsOnly_, &QAction::toggled, shown_, &CommandLogFilter::ShowErrorsOnly);
  connect(filter_, &QLineEdit::textChanged, shown_, &CommandLogFilter::ShowOnly);
  connect(copy, &QAction::triggered, this, &CommandLog::CopySelected);
  connect(saveAs_, &QAction::triggered, this, &CommandLog::AskAndSave);
  connect(clear_, &QAction::triggered, this, &CommandLog::AskAndClear);
  gather_.setSingleShot(true);
  gather_.setInterval(kGatherTime);
  connect(&gather_, &QTimer::timeout, this, &CommandLog::ShowPending);
}

void CommandLog::MakeColumns() {
  view_->verticalHeader()->hide();
  const QFontMetrics metrics(view_->font());
  view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view_->verticalHeader()->setDefaultSectionSize(metrics.height() + 2);
  QHeaderView& columns = Columns();
  columns.setHighlightSections(false);
  columns.setFont(font());
  columns.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  for (int column = 0; column < CommandLogModel::ColumnCount; ++column) {
    const QString sample = QString::fromLatin1(kWidthSamples[static_cast<std::size_t>(column)]);
    view_->setColumnWidth(column, metrics.horizontalAdvance(sample) + 12);
  }
  columns.setStretchLastSection(true);
}

QHeaderView& CommandLog::Columns() const { return *view_->horizontalHeader(); }

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
  model_->Append(std::exchange(pending_, {}));
  if (follows) view_->scrollToBottom();
  Q_EMIT Updated();
}

void CommandLog::CopySelected() const {
  std::vector<int> rows;
  for (const QModelIndex& index : view_->selectionModel()->selectedRows()) {
    rows.push_back(index.row());
  }
  std::ranges::sort(rows);
  if (!rows.empty()) QGuiApplication::clipboard()->setText(LogText(*shown_, rows));
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
               if (!error.isEmpty()) ShowError(*this, tr("Save Log"), error);
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
