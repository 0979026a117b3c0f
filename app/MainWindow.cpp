#include "app/MainWindow.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTableWidget>
#include <QThread>
#include <QVBoxLayout>

#include "app/CommandLog.h"
#include "app/FaultPanel.h"
#include "host/CAdvanceDlg.h"
#include "i18n/Catalog.h"

namespace {

enum Column { Name, Model, DialogType, ModelCode, Connection, ColumnCount };
constexpr std::array<const char*, ColumnCount> kTitles{"Name", "Model", "Type", "Code",
                                                       "Connection"};

constexpr int kGap = 9;
constexpr int kCascade = 28;
constexpr int kCascadeLength = 8;
constexpr auto kRetirementCheck = std::chrono::milliseconds(50);

QString CellText(const ProjectorProfile& profile, int column) {
  switch (column) {
    case Name:
      return QString::fromStdString(profile.Name);
    case Model:
      return QString::fromStdString(profile.Model.ModelName);
    case DialogType:
      return QString::number(profile.Model.DialogType);
    case ModelCode:
      return QString::number(profile.Model.ModelCode);
    case Connection:
      return ConnectionText(profile.Model);
    default:
      return {};
  }
}

}  // namespace

MainWindow::MainWindow(std::vector<ProjectorProfile> profiles)
    : log_(new CommandLog), faults_(new FaultPanel) {
  for (ProjectorProfile& profile : profiles) {
    const QString name = QString::fromStdString(profile.Name);
    auto observer = [log = QPointer(log_), name](const PjtCommand& command, const PjtReply& reply,
                                                 std::chrono::microseconds elapsed) {
      if (log) log->Add(name, command, reply, elapsed);
    };
    entries_.push_back(
        {std::make_unique<ProjectorSession>(std::move(profile), std::move(observer)), nullptr});
  }

  setWindowTitle(QStringLiteral("Advanced Control: Simulated Projectors"));
  if (const std::string problem = CatalogProblem(); !problem.empty()) {
    statusBar()->addWidget(new QLabel(QString::fromStdString(problem)));
  }
  auto* tools = new QSplitter(Qt::Vertical);
  tools->addWidget(faults_);
  tools->addWidget(log_);
  tools->setStretchFactor(1, 1);
  tools->setSizes({220, 540});
  tools->setHandleWidth(kGap);
  tools->setChildrenCollapsible(false);
  auto* splitter = new QSplitter;
  splitter->addWidget(MakeTable());
  splitter->addWidget(tools);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  splitter->setHandleWidth(kGap);
  splitter->setContentsMargins(kGap, kGap, kGap, kGap);
  setCentralWidget(splitter);
  resize(1240, 760);

  connect(log_, &CommandLog::Updated, faults_, &FaultPanel::RefreshStates);
  deleteRetired_.setSingleShot(true);
  deleteRetired_.setInterval(kRetirementCheck);
  connect(&deleteRetired_, &QTimer::timeout, this, &MainWindow::DeleteRetired);
  table_->setCurrentCell(0, 0);
  table_->setFocus();
}

MainWindow::~MainWindow() {
  faults_->SetSession(nullptr);
  retired_.clear();
  entries_.clear();
}

QWidget* MainWindow::MakeTable() {
  table_ = new QTableWidget(static_cast<int>(entries_.size()), ColumnCount);
  table_->setAccessibleName(QStringLiteral("Projectors"));
  table_->setEditTriggers(QTableWidget::NoEditTriggers);
  table_->setSelectionBehavior(QTableWidget::SelectRows);
  table_->setSelectionMode(QTableWidget::SingleSelection);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 6);
  for (int column = 0; column < ColumnCount; ++column) {
    const QString title = QString::fromLatin1(kTitles[static_cast<std::size_t>(column)]);
    table_->setHorizontalHeaderItem(column, new QTableWidgetItem(title));
    for (std::size_t i = 0; i < entries_.size(); ++i) {
      auto* cell = new QTableWidgetItem(CellText(entries_[i].session->Profile(), column));
      if (column == DialogType || column == ModelCode) cell->setTextAlignment(Qt::AlignCenter);
      table_->setItem(static_cast<int>(i), column, cell);
    }
  }
  QHeaderView* columns = table_->horizontalHeader();
  columns->setHighlightSections(false);
  table_->resizeColumnsToContents();
  for (int column = 0; column < ColumnCount; ++column) {
    table_->setColumnWidth(column, table_->columnWidth(column) + kGap);
  }
  const int width = columns->length();
  columns->setStretchLastSection(true);
  const int margins =
      2 * table_->frameWidth() + table_->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  table_->setMinimumWidth(std::min(width + margins, 640));

  open_ = new QPushButton(QStringLiteral("&Open"));
  open_->setDefault(true);
  auto* caption = new QLabel(QStringLiteral("Pro&jectors"));
  caption->setBuddy(table_);
  auto* side = new QWidget;
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(caption);
  layout->addWidget(table_);
  layout->addWidget(open_, 0, Qt::AlignRight);

  // Activation is a double-click or Enter.
  connect(table_, &QTableWidget::cellActivated, this, &MainWindow::OpenCurrent);
  connect(open_, &QPushButton::clicked, this, &MainWindow::OpenCurrent);
  connect(table_, &QTableWidget::currentCellChanged, this, [this](int row) {
    open_->setEnabled(row >= 0);
    faults_->SetSession(row < 0 ? nullptr : entries_[static_cast<std::size_t>(row)].session.get());
  });
  return side;
}

void MainWindow::OpenCurrent() {
  const int row = table_->currentRow();
  if (row >= 0) OpenDialog(static_cast<std::size_t>(row));
}

CAdvanceDlg* MainWindow::OpenDialog(std::size_t projector) {
  Entry& entry = entries_[projector];
  table_->setCurrentCell(static_cast<int>(projector), 0);
  if (entry.dialog == nullptr) {
    entry.dialog = entry.session->MakeDialog();
    connect(entry.dialog.get(), &QDialog::finished, this,
            [this, projector] { RetireDialog(projector); });
    // It may be closed while it is read, and another be opened.
    CAdvanceDlg& made = *entry.dialog;
    if (!made.CreateShown([this, &made] { Place(made); })) entry.dialog.reset();
  }
  CAdvanceDlg* dialog = entry.dialog.get();
  if (dialog == nullptr) return nullptr;
  dialog->setWindowState(dialog->windowState() & ~Qt::WindowMinimized);
  dialog->show();
  dialog->raise();
  dialog->activateWindow();
  return dialog;
}

// Away from the controls of the simulation, which are used while the dialog is open.
void MainWindow::Place(CAdvanceDlg& dialog) const {
  const QRect screen = MainWindow::screen()->availableGeometry();
  const auto others = std::ranges::count_if(entries_, [&dialog](const Entry& entry) {
    return entry.dialog != nullptr && entry.dialog.get() != &dialog;
  });
  const int inset = kCascade * (1 + static_cast<int>(others) % kCascadeLength);
  dialog.move(std::max(screen.left(), screen.right() - dialog.width() - inset),
              std::max(screen.top(), screen.bottom() - dialog.height() - inset));
}

void MainWindow::RetireDialog(std::size_t projector) {
  retired_.push_back(std::move(entries_[projector].dialog));
  deleteRetired_.start();
}

// A dialog can be closed by the window manager while one of its handlers waits for the projector,
// in an event loop below ours; that handler goes on afterwards.
void MainWindow::DeleteRetired() {
  if (QThread::currentThread()->loopLevel() > 1) {
    deleteRetired_.start();
  } else {
    retired_.clear();
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  // Nobody waits for a projector any more. Then every event loop ends, also those of messages and
  // pop-ups; the dialogs end with this window.
  for (const Entry& entry : entries_) {
    if (entry.dialog != nullptr) entry.dialog->reject();
  }
  event->accept();
  QCoreApplication::exit();
}
