#include "toolkit/TemplateRows.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>

#include "toolkit/CComboBox.h"
#include "toolkit/DialogTemplate.h"
#include "toolkit/FittedScroll.h"
#include "toolkit/TemplateControls.h"

namespace AdvancedControl {

namespace {

constexpr int kColumnGap = 32;
constexpr int kShortestList = 70;  // in dialog units

}  // namespace

QSize FromDialogUnits(const QWidget& widget, int width, int height) {
  // Cached per font, because shaping the alphabet takes longer than creating several controls.
  static QString measuredFont;
  static QSize base;
  if (const QString key = widget.font().key(); key != measuredFont) {
    const QFontMetrics metrics(widget.font());
    const int alphabet = metrics.horizontalAdvance(
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
    base = {(alphabet / 26 + 1) / 2, metrics.height()};
    measuredFont = key;
  }
  return {width * base.width() / 4, height * base.height() / 8};
}

void TemplateRows::Clear() {
  rows_.clear();
  closeRow_ = nullptr;
  delete dialog_.layout();
  delete scroll_;
}

void TemplateRows::Add(std::vector<QWidget*> controls) {
  rows_.push_back({.line = &template_->rows[rows_.size()], .controls = std::move(controls)});
}

void TemplateRows::Arrange() {
  const bool isWindow = dialog_.isWindow();
  auto* columns = new QHBoxLayout(&dialog_);
  columns->setContentsMargins(isWindow ? QMargins(16, 12, 16, 12) : QMargins());
  columns->setSpacing(isWindow ? kColumnGap : 0);
  if (isWindow) columns->setSizeConstraint(QLayout::SetFixedSize);  // follows absent rows
  QGridLayout* const left = MakeRowColumns(dialog_);
  columns->addLayout(left, 1);
  // A page has two columns even if it uses only one, so that rows are at the same place on all
  // tabs.
  QGridLayout* const right = isWindow ? nullptr : MakeRowColumns(dialog_);
  if (right != nullptr) {
    columns->addSpacing(kColumnGap);  // also beside an empty column
    columns->addLayout(right, 1);
  }
  int leftRow = 0;
  int rightRow = 0;
  bool stretched = false;
  for (Row& row : rows_) {
    const RowPlace place = row.line->place;
    if (place == RowPlace::Bottom && !stretched) {
      left->setRowStretch(leftRow++, 1);
      stretched = true;
    }
    row.grid = place == RowPlace::Right && right != nullptr ? right : left;
    row.gridRow = row.grid == left ? leftRow++ : rightRow++;
    if (row.line->controls.front().kind == ControlKind::Close) {
      closeRow_ = new QHBoxLayout;
      closeRow_->setSpacing(left->horizontalSpacing());
      closeRow_->addWidget(row.controls.front(), 0, Qt::AlignVCenter | Qt::AlignRight);
      row.grid->addLayout(closeRow_, row.gridRow, RowColumn::Label, 1, RowColumn::Count);
    } else {
      PlaceRow(*row.line, row.controls, row.grid, row.gridRow);
    }
  }
  if (!stretched) left->setRowStretch(leftRow, 1);
  if (right != nullptr) {
    right->setRowStretch(rightRow, 1);
  } else {
    // Absent rows reduce a window's height, but its width stays at least that of the template.
    const QMargins margins = columns->contentsMargins();
    const int width = FromDialogUnits(dialog_, template_->width, 0).width();
    left->addItem(new QSpacerItem(width - margins.left() - margins.right(), 0), leftRow, 0, 1,
                  RowColumn::Count);
  }
}

void TemplateRows::Update() {
  pitch_ = FromDialogUnits(dialog_, 0, template_->rulerHeight).height();
  for (const Row& row : rows_) {
    if (!row.present) continue;
    for (const QWidget* control : row.controls) {
      pitch_ = std::max(pitch_, control->sizeHint().height() + 2);
    }
  }
  ShareButtonWidths();
  ShareListWidths();
  for (const Row& row : rows_) {
    if (row.grid != nullptr) row.grid->setRowMinimumHeight(row.gridRow, row.present ? pitch_ : 0);
  }
}

void TemplateRows::ShareButtonWidths() const {
  int width = 0;
  std::vector<QWidget*> buttons;
  for (const Row& row : rows_) {
    for (std::size_t i = 0; i < row.controls.size(); ++i) {
      const ControlKind kind = row.line->controls[i].kind;
      if (kind != ControlKind::Button && kind != ControlKind::Close) continue;
      buttons.push_back(row.controls[i]);
      width = std::max(width, buttons.back()->sizeHint().width());
    }
  }
  for (QWidget* button : buttons) button->setMinimumWidth(width);
}

// The lists of a column are as wide as the widest of them, so that their ends and the buttons
// beside them are aligned.
void TemplateRows::ShareListWidths() const {
  const int least = FromDialogUnits(dialog_, kShortestList, 0).width();
  std::unordered_map<const QGridLayout*, std::vector<CComboBox*>> columns;
  for (const Row& row : rows_) {
    if (!row.present) continue;
    for (QWidget* control : row.controls) {
      if (auto* list = qobject_cast<CComboBox*>(control)) columns[row.grid].push_back(list);
    }
  }
  for (const auto& [grid, lists] : columns) {
    int width = least;
    for (const CComboBox* list : lists) width = std::max(width, list->sizeHint().width());
    for (CComboBox* list : lists) list->setMinimumWidth(width);
  }
}

TemplateRows::Row* TemplateRows::RowOf(const QWidget* control) {
  const auto row = std::ranges::find_if(rows_, [control](const Row& candidate) {
    return std::ranges::find(candidate.controls, control) != candidate.controls.end();
  });
  return row == rows_.end() ? nullptr : &*row;
}

std::span<QWidget* const> TemplateRows::ControlsBeside(const QWidget* control) {
  const Row* row = RowOf(control);
  return row != nullptr ? std::span<QWidget* const>(row->controls) : std::span<QWidget* const>();
}

bool TemplateRows::Show(const QWidget* control, bool present) {
  Row* row = RowOf(control);
  if (row == nullptr) return false;  // unreachable: ends the process
  row->present = present;
  for (QWidget* shown : row->controls) {
    if (shown->isHidden() == present) shown->setVisible(present);
  }
  if (row->grid != nullptr) row->grid->setRowMinimumHeight(row->gridRow, present ? pitch_ : 0);
  return true;
}

void TemplateRows::PlaceNotice(QWidget& notice) const {
  notice.setMinimumHeight(
      FromDialogUnits(dialog_, 0, template_->rulerHeight).height());  // as high as a row
  auto* left = static_cast<QGridLayout*>(dialog_.layout()->itemAt(0)->layout());
  left->addWidget(&notice, 0, 0, 1, RowColumn::Count, Qt::AlignTop | Qt::AlignLeft);
}

void TemplateRows::PlaceBesideClose(QWidget& widget) const {
  widget.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  if (closeRow_ != nullptr) closeRow_->insertWidget(0, &widget, 1, Qt::AlignVCenter);
}

void TemplateRows::ShareCaptionWidths(std::span<const TemplateRows* const> dialogs) {
  for (const bool right : {false, true}) {
    int width = 0;
    std::vector<QGridLayout*> columns;
    for (const TemplateRows* dialog : dialogs) {
      for (const Row& row : dialog->rows_) {
        // unreachable: a row without grid; only a window that scrolls has one, and these are pages
        if (!row.present || row.grid == nullptr || (row.line->place == RowPlace::Right) != right)
          continue;
        if (row.line->controls.front().kind != ControlKind::Label) continue;
        width = std::max(width, row.controls.front()->sizeHint().width());
        if (columns.empty() || columns.back() != row.grid) columns.push_back(row.grid);
      }
    }
    for (QGridLayout* column : columns) column->setColumnMinimumWidth(RowColumn::Label, width);
  }
}

void TemplateRows::FitToScreen() {
  if (!dialog_.isWindow() || dialog_.layout() == nullptr || scroll_ != nullptr) return;
  const QSize wanted = dialog_.layout()->totalSizeHint();
  if (wanted == wanted.boundedTo(AvailableSize(dialog_))) return;
  auto* rows = new QWidget(&dialog_);
  rows->setLayout(dialog_.layout());  // also moves the controls
  auto* frame = new QVBoxLayout(&dialog_);
  frame->addWidget(scroll_ = new FittedScroll(rows, &dialog_));
  for (Row& row : rows_) {
    if (row.line->controls.front().kind != ControlKind::Close) continue;
    row.grid->setRowMinimumHeight(row.gridRow, 0);
    row.grid->removeItem(closeRow_);
    row.grid = nullptr;
    frame->addLayout(closeRow_);
  }
  frame->activate();  // also takes back the least size of a dialog that is filled again
  const QSize outside = frame->totalSizeHint() - scroll_->sizeHint();
  dialog_.resize(FittedToScreen(dialog_, rows->layout()->totalSizeHint() + outside));
}

}  // namespace AdvancedControl
