#include "app/desktop/work/WorkDialog.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "toolkit/Icons.h"
#include "toolkit/IsolatedText.h"

namespace {

constexpr QSize kUsualSize{520, 420};
constexpr QSize kFrame{10, 40};  // a guess until it is shown

}  // namespace

WorkDialog::WorkDialog(WorkRun* run, const NameOf& nameOf, QWidget* parent)
    : QDialog(parent),
      run_(run),
      text_(new QLabel),
      list_(new QTreeWidget),
      progress_(new QProgressBar) {
  run_->setParent(this);
  setWindowTitle(run_->Plan().title);
  MakeLayout(nameOf);
  connect(run_, &WorkRun::Progressed, this, &WorkDialog::Show);
  connect(begin_, &QPushButton::clicked, this, &WorkDialog::Begin);
  connect(rest_, &QPushButton::clicked, run_, &WorkRun::Start);
  connect(undo_, &QPushButton::clicked, this, [this] {
    const auto plan = run_->UndoPlan();
    accept();
    if (plan) Q_EMIT UndoWanted(*plan);
  });
  Show();
}

void WorkDialog::MakeLayout(const NameOf& nameOf) {
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  list_->setHeaderLabels({tr("Projector"), tr("Result")});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setItemDelegate(new IsolatedTexts(list_));
  list_->setAccessibleName(tr("Projectors"));
  int width = 0;
  for (const WorkLine& line : run_->Lines()) {
    const QString name = nameOf(line.id);
    width = std::max(width, fontMetrics().horizontalAdvance(name));
    new QTreeWidgetItem(list_, {name, QString()});
  }
  list_->setColumnWidth(0, std::clamp(width + 24, 120, kUsualSize.width() * 3 / 5));
  progress_->setTextVisible(false);
  progress_->setAccessibleName(tr("Progress"));

  auto* buttons = new QDialogButtonBox;
  begin_ = buttons->addButton(run_->Plan().title, QDialogButtonBox::ActionRole);
  rest_ = buttons->addButton(tr("&Retry the Failed"), QDialogButtonBox::ActionRole);
  undo_ = buttons->addButton(tr("&Undo All"), QDialogButtonBox::ActionRole);
  close_ = buttons->addButton(QDialogButtonBox::Cancel);
  begin_->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &WorkDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text_);
  layout->addWidget(list_, 1);
  layout->addWidget(progress_);
  layout->addWidget(buttons);
  RemoveForeignButtonIcons(*this);
  resize(kUsualSize.boundedTo(screen()->availableGeometry().size() - kFrame));
}

void WorkDialog::Begin() {
  hasBegun_ = true;
  run_->Start();
}

void WorkDialog::Show() {
  const bool isRunning = run_->IsRunning();
  const auto& lines = run_->Lines();
  const bool hasStopped = std::ranges::any_of(lines, &WorkLine::WasStopped);
  int finished = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    QTreeWidgetItem* item = list_->topLevelItem(static_cast<int>(i));
    const QString text = WorkRun::TextOf(lines[i]);
    if (item->text(1) != text) item->setText(1, text);
    finished += lines[i].outcome > WorkOutcome::Working;
  }
  text_->setText(hasBegun_ ? run_->Summary() : run_->Plan().question);
  progress_->setVisible(hasBegun_);
  progress_->setRange(0, std::max(1, static_cast<int>(lines.size())));
  progress_->setValue(finished);
  begin_->setVisible(!hasBegun_);
  rest_->setText(hasStopped ? tr("Do the &Rest") : tr("&Retry the Failed"));
  rest_->setVisible(hasBegun_ && !isRunning && run_->HasRest());
  undo_->setVisible(hasBegun_ && !isRunning && run_->UndoPlan().has_value());
  close_->setText(!hasBegun_ ? tr("Cancel") : isRunning ? tr("Stop") : tr("Close"));
}

// While it works, the first Stop or Esc stops it; the next one closes the dialog.
void WorkDialog::reject() {
  if (run_->IsRunning()) return run_->Cancel();
  QDialog::reject();
}
