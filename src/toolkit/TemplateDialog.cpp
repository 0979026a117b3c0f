#include "toolkit/TemplateDialog.h"

#include <algorithm>
#include <utility>

#include <QEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "toolkit/CComboBox.h"
#include "toolkit/Contrast.h"
#include "toolkit/FittedScroll.h"
#include "toolkit/Flash.h"
#include "toolkit/ResourceModule.h"
#include "toolkit/TemplateControls.h"

namespace AdvancedControl {

namespace {

constexpr int kColumnGap = 32;
constexpr int kShortestList = 70;  // in dialog units

bool HoldsTab(const RowTemplate& row) {
  return std::ranges::any_of(row.controls,
                             [](const auto& control) { return control.kind == ControlKind::Tab; });
}

bool IsUsableWhileBusy(const DialogTemplate& dialog, int id) {
  return std::ranges::any_of(dialog.rows, [id](const RowTemplate& row) {
    return std::ranges::any_of(row.controls, [id](const ControlTemplate& control) {
      return control.id == id &&
             (control.kind == ControlKind::Close || control.kind == ControlKind::Tab);
    });
  });
}

// Alt+C closes the dialog in every language; a caption without a C gets "(C)" appended.
void AssignMnemonics(const TemplateDialog& dialog) {
  for (const RowTemplate& row : dialog.Template()->rows) {
    if (row.controls.front().kind != ControlKind::Close) continue;
    auto& close = dialog.Item<QPushButton>(row.controls.front().id);
    QString text = close.text();
    if (text.contains(QLatin1Char('&'))) continue;
    close.setAccessibleName(text);
    const auto letter = text.indexOf(QLatin1Char('C'), 0, Qt::CaseInsensitive);
    close.setText(letter < 0 ? text + QStringLiteral("(&C)")
                             : text.insert(letter, QLatin1Char('&')));
  }
}

}  // namespace

TemplateDialog::TemplateDialog(int templateNumber, CWnd* parent)
    : QDialog(parent), templateNumber_(templateNumber) {}

bool TemplateDialog::BuildControls() {
  // If the dialog ran before, the controls of that run still exist.
  for (const auto& [id, control] : std::exchange(controls_, {})) delete control;
  rows_.clear();
  delete layout();
  delete scroll_;

  template_ = ResourceChain::FindDialog(templateNumber_);
  if (template_ == nullptr) return false;
  MakeDisabledTextsReadable();
  setWindowTitle(QString::fromUtf8(template_->caption));
  for (const RowTemplate& row : template_->rows) {
    PlacedRow placed{};
    for (const ControlTemplate& control : row.controls) {
      if (control.kind == ControlKind::None) break;
      QWidget* widget = MakeControl(control, this);
      placed.controls.push_back(widget);
      controls_[control.id] = widget;
    }
    rows_.push_back(std::move(placed));
  }
  // A dialog with tabs lays out its pages and controls itself.
  if (std::ranges::none_of(template_->rows, HoldsTab)) CreateLayout();
  return true;
}

// Only for a window, because its pages inherit its palette.
void TemplateDialog::MakeDisabledTextsReadable() {
  if (!isWindow()) return;
  const QPalette readable = WithReadableDisabledTexts(palette());
  if (readable != palette()) setPalette(readable);
}

void TemplateDialog::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && template_ != nullptr) MakeDisabledTextsReadable();
}

void TemplateDialog::CreateLayout() {
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(isWindow() ? 16 : 0, isWindow() ? 12 : 0, isWindow() ? 16 : 0,
                              isWindow() ? 12 : 0);
  columns->setSpacing(isWindow() ? kColumnGap : 0);
  if (isWindow()) columns->setSizeConstraint(QLayout::SetFixedSize);  // follows absent rows
  QGridLayout* const left = MakeRowColumns(*this);
  columns->addLayout(left, 1);
  // A page has two columns even if it uses only one, so that rows are at the same place on all
  // tabs.
  QGridLayout* const right = isWindow() ? nullptr : MakeRowColumns(*this);
  if (right != nullptr) {
    columns->addSpacing(kColumnGap);  // also beside an empty column
    columns->addLayout(right, 1);
  }
  int leftRow = 0;
  int rightRow = 0;
  bool stretched = false;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const RowTemplate& row = template_->rows[i];
    if (row.place == RowPlace::Bottom && !stretched) {
      left->setRowStretch(leftRow++, 1);
      stretched = true;
    }
    PlacedRow& placed = rows_[i];
    placed.grid = row.place == RowPlace::Right && right != nullptr ? right : left;
    placed.gridRow = placed.grid == left ? leftRow++ : rightRow++;
    PlaceRow(row, placed.controls, placed.grid, placed.gridRow);
  }
  if (!stretched) left->setRowStretch(leftRow++, 1);
  if (right != nullptr) {
    right->setRowStretch(rightRow, 1);
  } else {
    // Absent rows reduce a window's height, but its width stays at least that of the template.
    const QMargins margins = layout()->contentsMargins();
    const int width = FromDialogUnits(template_->width, 0).width();
    left->addItem(new QSpacerItem(width - margins.left() - margins.right(), 0), leftRow, 0, 1,
                  RowColumn::Count);
  }
}

void TemplateDialog::FinishLayout() {
  UpdateRows();
  AssignMnemonics(*this);
  FitToScreen();
}

void TemplateDialog::UpdateRows() {
  pitch_ = FromDialogUnits(0, template_->rulerHeight).height();
  int buttonWidth = 0;
  for (const PlacedRow& row : rows_) {
    if (!row.present) continue;
    for (const QWidget* control : row.controls) {
      pitch_ = std::max(pitch_, control->sizeHint().height() + 2);
    }
  }
  std::vector<QWidget*> buttons;
  for (const RowTemplate& row : template_->rows) {
    for (const ControlTemplate& control : row.controls) {
      if (control.kind != ControlKind::Button && control.kind != ControlKind::Close) continue;
      buttons.push_back(GetDlgItem(control.id));
      buttonWidth = std::max(buttonWidth, buttons.back()->sizeHint().width());
    }
  }
  for (QWidget* button : buttons) button->setMinimumWidth(buttonWidth);
  ShareListWidths();
  for (const PlacedRow& row : rows_) {
    if (row.grid != nullptr) row.grid->setRowMinimumHeight(row.gridRow, row.present ? pitch_ : 0);
  }
}

// The lists of a column are as wide as the widest of them, so that their ends and the buttons
// beside them are aligned.
void TemplateDialog::ShareListWidths() {
  const int least = FromDialogUnits(kShortestList, 0).width();
  std::unordered_map<const QGridLayout*, std::vector<CComboBox*>> columns;
  for (const PlacedRow& row : rows_) {
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

void TemplateDialog::ShareCaptionWidths(std::span<TemplateDialog* const> dialogs) {
  for (const RowPlace place : {RowPlace::Left, RowPlace::Right}) {
    int width = 0;
    std::vector<QGridLayout*> columns;
    for (TemplateDialog* dialog : dialogs) {
      for (std::size_t i = 0; i < dialog->rows_.size(); ++i) {
        const PlacedRow& row = dialog->rows_[i];
        const RowTemplate& line = dialog->template_->rows[i];
        const bool isRight = line.place == RowPlace::Right;
        if (!row.present || row.grid == nullptr || isRight != (place == RowPlace::Right)) continue;
        if (line.controls.front().kind != ControlKind::Label) continue;
        width = std::max(width, row.controls.front()->sizeHint().width());
        if (columns.empty() || columns.back() != row.grid) columns.push_back(row.grid);
      }
    }
    for (QGridLayout* column : columns) column->setColumnMinimumWidth(RowColumn::Label, width);
  }
}

// A pop-up that is too large for the screen scrolls its rows; Close stays visible.
void TemplateDialog::FitToScreen() {
  if (!isWindow() || layout() == nullptr || scroll_ != nullptr) return;
  const QSize wanted = layout()->totalSizeHint();
  if (wanted == wanted.boundedTo(AvailableSize(*this))) return;
  auto* rows = new QWidget(this);
  rows->setLayout(layout());  // also moves the controls
  auto* frame = new QVBoxLayout(this);
  frame->addWidget(scroll_ = new FittedScroll(rows, this));
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const ControlTemplate& close = template_->rows[i].controls.front();
    if (close.kind != ControlKind::Close) continue;
    rows_[i].grid->setRowMinimumHeight(rows_[i].gridRow, 0);
    rows_[i].grid = nullptr;
    frame->addWidget(GetDlgItem(close.id), 0, Qt::AlignRight);
  }
  frame->activate();
  const QSize outside = frame->totalSizeHint() - scroll_->sizeHint();
  resize(FittedToScreen(*this, rows->layout()->totalSizeHint() + outside));
}

bool TemplateDialog::AcceptsInputWhileBusy(const QWidget& target) const {
  for (const QWidget* part = &target; part != nullptr && part != this;
       part = part->parentWidget()) {
    if (const auto* page = qobject_cast<const TemplateDialog*>(part)) {
      return page->KeepsInput(target);
    }
    const auto control =
        std::ranges::find(controls_, part, [](const auto& numbered) { return numbered.second; });
    if (control == controls_.end()) continue;
    return IsUsableWhileBusy(*template_, control->first) || KeepsInput(*part);
  }
  return true;
}

QWidget* TemplateDialog::GetDlgItem(int id) const {
  const auto found = controls_.find(id);
  return found == controls_.end() ? nullptr : found->second;
}

void TemplateDialog::NoSuchControl(int id) const {
  qFatal("dialog %d has no control %d of the kind asked for", templateNumber_, id);
}

TemplateDialog::PlacedRow* TemplateDialog::RowOf(int id) {
  QWidget* control = GetDlgItem(id);
  const auto row = std::ranges::find_if(rows_, [control](const PlacedRow& candidate) {
    return std::ranges::find(candidate.controls, control) != candidate.controls.end();
  });
  return control == nullptr || row == rows_.end() ? nullptr : &*row;
}

void TemplateDialog::ShowRow(int id, bool present) {
  PlacedRow* row = RowOf(id);
  if (row == nullptr) NoSuchControl(id);
  row->present = present;
  for (QWidget* control : row->controls) control->setVisible(present);
  if (row->grid != nullptr) row->grid->setRowMinimumHeight(row->gridRow, present ? pitch_ : 0);
}

QRect TemplateDialog::RowRect(int id) {
  QRect rect;
  if (const PlacedRow* row = RowOf(id); row != nullptr) {
    for (const QWidget* control : row->controls) rect = rect.united(control->geometry());
  }
  return rect;
}

void TemplateDialog::Highlight(int id) {
  QWidget* control = GetDlgItem(id);
  if (control == nullptr || !control->isVisible()) return;
  QWidget& parent = *control->parentWidget();
  for (QWidget* area = &parent; area != nullptr; area = area->parentWidget()) {
    if (auto* scroll = qobject_cast<FittedScroll*>(area)) scroll->ScrollIntoView(*control);
  }
  Flash(parent, RowRect(id));
}

void TemplateDialog::GreyCaption(int id) {
  const PlacedRow* row = RowOf(id);
  if (row == nullptr) return;
  std::vector<QWidget*> captions;
  bool operable = false;
  bool enabled = false;
  for (QWidget* control : row->controls) {
    if (qobject_cast<QLabel*>(control) != nullptr) {
      captions.push_back(control);
    } else if (qobject_cast<QLineEdit*>(control) == nullptr && !control->isHidden()) {
      operable = true;
      enabled = enabled || control->isEnabledTo(this);
    }
  }
  if (!operable) return;
  for (QWidget* caption : captions) caption->setEnabled(enabled);
}

void TemplateDialog::ShowNotice(const QString& text) {
  auto* notice = new QLabel(text, this);
  notice->setMinimumHeight(
      FromDialogUnits(0, template_->rulerHeight).height());  // as high as a row
  controls_[kNoticeId] = notice;
  auto* left = static_cast<QGridLayout*>(layout()->itemAt(0)->layout());
  left->addWidget(notice, 0, 0, 1, RowColumn::Count, Qt::AlignTop | Qt::AlignLeft);
}

void TemplateDialog::PlaceBesideClose(QWidget& widget) {
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (template_->rows[i].controls.front().kind != ControlKind::Close) continue;
    rows_[i].grid->addWidget(&widget, rows_[i].gridRow, RowColumn::Label, 1, RowColumn::Count,
                             Qt::AlignVCenter | Qt::AlignLeft);
  }
}

QSize TemplateDialog::FromDialogUnits(int width, int height) const {
  // Cached per font, because shaping the alphabet takes longer than creating several controls.
  static QString measuredFont;
  static QSize base;
  if (const QString key = font().key(); key != measuredFont) {
    const QFontMetrics metrics(font());
    const int alphabet = metrics.horizontalAdvance(
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
    base = {(alphabet / 26 + 1) / 2, metrics.height()};
    measuredFont = key;
  }
  return {width * base.width() / 4, height * base.height() / 8};
}

QSize TemplateDialog::DialogSize() const {
  QSize size =
      template_ != nullptr ? FromDialogUnits(template_->width, template_->height) : QSize();
  if (layout() != nullptr) size = size.expandedTo(layout()->totalSizeHint());
  return size;
}

}  // namespace AdvancedControl
