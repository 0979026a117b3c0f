#include "toolkit/TemplateControls.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>

#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/CTabCtrl.h"
#include "toolkit/LineLabel.h"
#include "toolkit/NumberField.h"
#include "toolkit/StateLabel.h"

namespace AdvancedControl {

namespace {

constexpr int kSpacing = 6;
constexpr int kSliderMinimumWidth = 150;
constexpr int kRepeatDelay = 400;  // milliseconds
constexpr int kRepeatInterval = 80;

int SmallButtonWidth(const QWidget& widget) { return widget.fontMetrics().height() * 2; }

QPushButton* MakeButton(const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  // Enter must not press a button without the focus.
  button->setAutoDefault(false);
  return button;
}

QPushButton* MakeSmallButton(const QString& caption, QWidget* parent) {
  QPushButton* button = MakeButton(caption, parent);
  // Holding the button repeats the step; repeats are dropped while a step waits for the projector.
  button->setAutoRepeat(true);
  button->setAutoRepeatDelay(kRepeatDelay);
  button->setAutoRepeatInterval(kRepeatInterval);
  button->setFixedWidth(SmallButtonWidth(*button));
  return button;
}

CComboBox* MakeCombo(std::span<const char* const> entries, QWidget* parent) {
  auto* combo = new CComboBox(parent);
  std::vector<std::pair<QString, int>> texts;
  texts.reserve(entries.size());
  for (const char* entry : entries) {
    texts.emplace_back(QString::fromUtf8(entry), static_cast<int>(texts.size()));
  }
  combo->Fill(texts);
  return combo;
}

// Places controls that share the value columns: a list and its button, arrows and their number,
// check boxes or a single button.
void PlaceTogether(const std::vector<QWidget*>& controls, QGridLayout* grid, int gridRow,
                   int firstColumn) {
  const int span = RowColumn::Count - firstColumn;
  if (controls.size() == 1) {
    return grid->addWidget(controls.front(), gridRow, firstColumn, 1, span,
                           Qt::AlignVCenter | Qt::AlignLeft);
  }
  auto* box = new QHBoxLayout;
  box->setSpacing(grid->horizontalSpacing());
  for (QWidget* control : controls) box->addWidget(control, 0, Qt::AlignVCenter);
  box->addStretch(1);
  grid->addLayout(box, gridRow, firstColumn, 1, span);
}

}  // namespace

int ResetButtonSide(const QWidget& dialog) { return dialog.fontMetrics().height() + kSpacing; }

QGridLayout* MakeRowColumns(const QWidget& dialog) {
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(0);
  grid->setHorizontalSpacing(kSpacing);
  grid->setColumnMinimumWidth(RowColumn::Minus, SmallButtonWidth(dialog));
  grid->setColumnMinimumWidth(RowColumn::Slider, kSliderMinimumWidth);
  grid->setColumnMinimumWidth(RowColumn::Plus, SmallButtonWidth(dialog));
  // Space for the button that resets a row, so that sliders have the same width on all pages.
  if (!dialog.isWindow()) {
    grid->setColumnMinimumWidth(RowColumn::Button, ResetButtonSide(dialog) + kSpacing);
  }
  grid->setColumnStretch(RowColumn::Slider, 1);
  return grid;
}

QWidget* MakeControl(const ControlTemplate& control, QWidget* parent) {
  const QString caption = QString::fromUtf8(control.caption);
  switch (control.kind) {  // unreachable: there is a case for each
    case ControlKind::Label:
    case ControlKind::Colon:
      return new LineLabel(caption, parent);
    case ControlKind::Text:
      return new StateLabel(caption, parent);
    case ControlKind::Minus:
      return MakeSmallButton(QStringLiteral("\u2212"), parent);
    case ControlKind::Plus:
    case ControlKind::Arrow:
      return MakeSmallButton(caption, parent);
    case ControlKind::Slider: {
      auto* slider = new CSliderCtrl(parent);
      slider->setMinimumWidth(kSliderMinimumWidth);
      return slider;
    }
    case ControlKind::Field:
      return new NumberField(parent);
    case ControlKind::Combo:
      return MakeCombo(control.entries, parent);
    case ControlKind::Button:
    case ControlKind::Close:
      return MakeButton(caption, parent);
    case ControlKind::Check:
      return new QCheckBox(caption, parent);
    case ControlKind::Tab:
      return new CTabCtrl(parent);
    case ControlKind::None:  // unreachable: no control of a row
      break;
  }
  return nullptr;
}

namespace {

bool Has(const RowTemplate& row, ControlKind kind) {
  return std::ranges::find(row.controls, kind, &ControlTemplate::kind) != row.controls.end();
}

/// The column of a control; none if it shares the value columns with its neighbours.
struct Place {
  int column = -1;
  int span = 1;
  Qt::Alignment horizontal{};
};

Place PlaceOf(const RowTemplate& row, std::size_t index) {
  const bool hasSlider = Has(row, ControlKind::Slider);
  switch (row.controls[index].kind) {
    case ControlKind::Label:
      return {RowColumn::Label};
    case ControlKind::Colon:
      return {RowColumn::Colon};
    case ControlKind::Slider:
      return {RowColumn::Slider};
    case ControlKind::Minus:
      return hasSlider ? Place{RowColumn::Minus} : Place{};
    case ControlKind::Plus:
      return hasSlider ? Place{RowColumn::Plus} : Place{};
    case ControlKind::Field:
      return hasSlider ? Place{RowColumn::Field} : Place{};
    case ControlKind::Button:
      return hasSlider ? Place{RowColumn::Button} : Place{};
    case ControlKind::Text:
      // The captions within an arrow pad have their own column, so that the arrows are aligned.
      return Has(row, ControlKind::Arrow) ? Place{RowColumn::Minus} : Place{};
    default:
      return {};
  }
}

}  // namespace

void PlaceRow(const RowTemplate& row, const std::vector<QWidget*>& controls, QGridLayout* grid,
              int gridRow) {
  std::vector<QWidget*> together;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const Place place = PlaceOf(row, i);
    if (place.column < 0) {
      together.push_back(controls[i]);
    } else {
      grid->addWidget(controls[i], gridRow, place.column, 1, place.span,
                      Qt::AlignVCenter | place.horizontal);
    }
  }
  if (together.empty()) return;
  const auto arrow = std::ranges::find(row.controls, ControlKind::Arrow, &ControlTemplate::kind);
  const bool hasArrows = arrow != row.controls.end();
  // The left arrow stays left in a mirrored layout.
  const bool isLeft = hasArrows && std::string_view(arrow->caption) == "←";
  if (isLeft && together.front()->isRightToLeft()) std::swap(together[0], together[1]);
  PlaceTogether(together, grid, gridRow, hasArrows ? RowColumn::Slider : RowColumn::Minus);
}

}  // namespace AdvancedControl
