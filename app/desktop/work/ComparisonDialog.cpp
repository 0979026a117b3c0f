#include "app/desktop/work/ComparisonDialog.h"

#include <algorithm>
#include <utility>

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "toolkit/Icons.h"

namespace {

constexpr QSize kUsualSize{720, 560};
constexpr QSize kFrame{10, 40};  // a guess until it is shown

}  // namespace

void Comparison::Add(const ProjectorRow& row, const FleetWatch& watch,
                     std::shared_ptr<const Snapshot> wanted) {
  projectors.push_back({.target = watch.TargetOf(row.profile),
                        .name = QString::fromStdString(row.profile.name),
                        .wanted = std::move(wanted)});
}

ComparisonDialog::ComparisonDialog(Comparison comparison, FleetWatch& watch,
                                   const SettingTexts& texts, QWidget* parent)
    : QDialog(parent),
      comparison_(std::move(comparison)),
      run_(new WorkRun(watch, texts, Plan(), this)),
      text_(new QLabel),
      tree_(new DifferenceTree(comparison_.column, comparison_.applies, texts)),
      progress_(new QProgressBar) {
  setWindowTitle(comparison_.title);
  MakeLayout();
  connect(run_, &WorkRun::Progressed, this, &ComparisonDialog::Show);
  connect(run_, &WorkRun::Finished, this, &ComparisonDialog::ShowResult);
  connect(tree_, &DifferenceTree::CheckedChanged, this,
          [this] { apply_->setEnabled(tree_->HasChecked()); });
  run_->Start();
}

WorkPlan ComparisonDialog::Plan() const {
  CompareSnapshots compare{.areWanted = comparison_.areWanted};
  WorkPart part;
  for (const ComparedProjector& projector : comparison_.projectors) {
    compare.snapshots[projector.target.id] = projector.wanted;
    part.targets.push_back(projector.target);
  }
  part.work = std::move(compare);
  return {.title = comparison_.title, .question = {}, .parts = {std::move(part)}};
}

void ComparisonDialog::MakeLayout() {
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  progress_->setTextVisible(false);
  progress_->setAccessibleName(tr("Progress"));
  progress_->setRange(0, static_cast<int>(comparison_.projectors.size()));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  close_ = buttons->button(QDialogButtonBox::Close);
  again_ = buttons->addButton(tr("Read A&gain"), QDialogButtonBox::ActionRole);
  apply_ = buttons->addButton(tr("&Apply"), QDialogButtonBox::ApplyRole);
  apply_->setVisible(comparison_.applies);
  resize(kUsualSize.boundedTo(screen()->availableGeometry().size() - kFrame));
  auto* layout = new QVBoxLayout(this);
  if (!comparison_.source.isEmpty()) {
    auto* source =
        new QLabel(fontMetrics().elidedText(comparison_.source, Qt::ElideMiddle, width() * 9 / 10));
    source->setTextFormat(Qt::PlainText);
    source->setToolTip(comparison_.source.toHtmlEscaped());
    source->setAccessibleName(comparison_.source);
    layout->addWidget(source);
  }
  layout->addWidget(text_);
  layout->addWidget(tree_, 1);
  layout->addWidget(progress_);
  layout->addWidget(buttons);
  apply_->setDefault(comparison_.applies);  // only now that the dialog knows the button
  RemoveForeignButtonIcons(*this);
  connect(again_, &QPushButton::clicked, run_, &WorkRun::Start);
  connect(apply_, &QPushButton::clicked, this, &ComparisonDialog::Apply);
  connect(buttons, &QDialogButtonBox::rejected, this, &ComparisonDialog::reject);
}

void ComparisonDialog::Show() {
  const bool isRunning = run_->IsRunning();
  const auto& lines = run_->Lines();
  progress_->setVisible(isRunning);
  progress_->setValue(static_cast<int>(std::ranges::count_if(
      lines, [](const WorkLine& line) { return line.outcome > WorkOutcome::Working; })));
  if (isRunning) text_->setText(tr("Reading settings…"));
  tree_->setEnabled(!isRunning);
  apply_->setEnabled(!isRunning && tree_->HasChecked());
  again_->setVisible(!isRunning && run_->HasRest());
  close_->setText(isRunning ? tr("Stop") : comparison_.applies ? tr("Cancel") : tr("Close"));
}

void ComparisonDialog::ShowResult() {
  const auto& lines = run_->Lines();
  tree_->Show(comparison_.projectors, lines);
  const auto count = [&lines](const auto& is) {
    return static_cast<int>(std::ranges::count_if(lines, is));
  };
  const auto has = [](SettingDifference::Kind kind) {
    return [kind](const WorkLine& line) {
      return line.differences &&
             std::ranges::count(*line.differences, kind, &SettingDifference::kind) > 0;
    };
  };
  const int differing = count(has(SettingDifference::Kind::Differs));
  const int same =
      count([](const WorkLine& line) { return line.differences && line.differences->empty(); });
  const int partly = count(has(SettingDifference::Kind::NotRead));
  const int failed = count(&WorkLine::HasFailed);
  const int skipped = count(&WorkLine::WasStopped);
  QStringList sentences;
  if (differing + partly + failed + skipped == 0) sentences += tr("Nothing differs.");
  if (differing > 0) sentences += tr("%n projectors differ.", nullptr, differing);
  if (same > 0) sentences += tr("%n projectors have all these settings already.", nullptr, same);
  if (partly > 0)
    sentences += tr("%n projectors do not report all of these settings now.", nullptr, partly);
  if (failed > 0) sentences += tr("%n projectors could not be read.", nullptr, failed);
  if (skipped > 0) sentences += tr("%n projectors were skipped.", nullptr, skipped);
  text_->setText(sentences.join(QLatin1Char(' ')));
}

void ComparisonDialog::Apply() {
  ApplySnapshots apply{tree_->Checked()};
  WorkPart part;
  for (const ComparedProjector& projector : comparison_.projectors) {
    if (apply.snapshots.contains(projector.target.id)) part.targets.push_back(projector.target);
  }
  part.work = std::move(apply);
  accept();
  Q_EMIT ApplyWanted({.title = comparison_.title, .question = {}, .parts = {std::move(part)}});
}

// While it reads, the first Stop or Esc stops that; the next one closes the dialog.
void ComparisonDialog::reject() {
  if (run_->IsRunning()) return run_->Cancel();
  QDialog::reject();
}
