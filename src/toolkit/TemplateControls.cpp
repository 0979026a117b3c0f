#include "toolkit/TemplateControls.h"

#include <algorithm>

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/CTabCtrl.h"

namespace {

constexpr int kSliderMinimumWidth = 150;

int SmallButtonWidth(const QWidget& widget) { return widget.fontMetrics().height() * 2; }

QPushButton* MakeButton(const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  // Enter must not press a button that merely exists.
  button->setAutoDefault(false);
  return button;
}

QPushButton* MakeSmallButton(const QString& caption, QWidget* parent) {
  QPushButton* button = MakeButton(caption, parent);
  button->setFixedWidth(SmallButtonWidth(*button));
  return button;
}

QLineEdit* MakeField(QWidget* parent) {
  auto* field = new QLineEdit(parent);
  field->setReadOnly(true);
  field->setFocusPolicy(Qt::ClickFocus);
  field->setAlignment(Qt::AlignRight);
  field->setFixedWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("-00000")) + 16);
  return field;
}

CComboBox* MakeCombo(std::span<const char* const> entries, QWidget* parent) {
  auto* combo = new CComboBox(parent);
  for (const char* entry : entries) combo->Add(QString::fromUtf8(entry));
  return combo;
}

// Controls that share the value columns: an arrow pad, check boxes, a lone button.
void PlaceTogether(const std::vector<QWidget*>& controls, QGridLayout* grid, int gridRow,
                   int firstColumn, int endColumn) {
  auto* box = new QHBoxLayout;
  box->setContentsMargins(0, 0, 0, 0);
  box->setSpacing(grid->horizontalSpacing());
  for (QWidget* control : controls) box->addWidget(control, 0, Qt::AlignVCenter);
  box->addStretch(1);
  grid->addLayout(box, gridRow, firstColumn, 1, endColumn - firstColumn);
}

}  // namespace

QGridLayout* MakeRowColumns(const QWidget& dialog) {
  auto* grid = new QGridLayout;
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(0);
  grid->setHorizontalSpacing(6);
  grid->setColumnMinimumWidth(RowColumn::Minus, SmallButtonWidth(dialog));
  grid->setColumnMinimumWidth(RowColumn::Slider, kSliderMinimumWidth);
  grid->setColumnMinimumWidth(RowColumn::Plus, SmallButtonWidth(dialog));
  grid->setColumnStretch(RowColumn::Slider, 1);
  return grid;
}

QWidget* MakeControl(const ControlTemplate& control, QWidget* parent) {
  const QString caption = QString::fromUtf8(control.caption);
  switch (control.kind) {
    case ControlKind::Label:
    case ControlKind::Colon:
    case ControlKind::Text: {
      auto* label = new QLabel(caption, parent);
      label->setTextFormat(Qt::PlainText);
      return label;
    }
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
      return MakeField(parent);
    case ControlKind::Combo:
      return MakeCombo(control.entries, parent);
    case ControlKind::Button:
    case ControlKind::Close:
      return MakeButton(caption, parent);
    case ControlKind::Check:
      return new QCheckBox(caption, parent);
    case ControlKind::Tab:
      return new CTabCtrl(parent);
    case ControlKind::None:
      break;
  }
  return nullptr;
}

void PlaceRow(const RowTemplate& row, const std::vector<QWidget*>& controls, QGridLayout* grid,
              int gridRow) {
  const auto has = [&row](ControlKind kind) {
    return std::ranges::find(row.controls, kind, &ControlTemplate::kind) != row.controls.end();
  };
  const bool hasSlider = has(ControlKind::Slider);
  const bool hasArrows = has(ControlKind::Arrow);
  bool afterCombo = false;
  std::vector<QWidget*> together;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    QWidget* widget = controls[i];
    switch (row.controls[i].kind) {
      case ControlKind::Label:
        grid->addWidget(widget, gridRow, RowColumn::Label, Qt::AlignVCenter);
        break;
      case ControlKind::Colon:
        grid->addWidget(widget, gridRow, RowColumn::Colon, Qt::AlignVCenter);
        break;
      case ControlKind::Slider:
        grid->addWidget(widget, gridRow, RowColumn::Slider, Qt::AlignVCenter);
        break;
      case ControlKind::Minus:
      case ControlKind::Plus:
        if (hasSlider) {
          const bool minus = row.controls[i].kind == ControlKind::Minus;
          grid->addWidget(widget, gridRow, minus ? RowColumn::Minus : RowColumn::Plus,
                          Qt::AlignVCenter);
        } else {
          together.push_back(widget);
        }
        break;
      case ControlKind::Combo:
        grid->addWidget(widget, gridRow, RowColumn::Minus, 1, 3, Qt::AlignVCenter);
        afterCombo = true;
        break;
      case ControlKind::Field:
        // The last field of a row stands in the column of all fields.
        if (i + 1 >= controls.size() || hasSlider) {
          grid->addWidget(widget, gridRow, RowColumn::Field, Qt::AlignVCenter);
        } else {
          together.push_back(widget);
        }
        break;
      case ControlKind::Button:
        if (hasSlider) {
          grid->addWidget(widget, gridRow, RowColumn::Button, Qt::AlignVCenter);
        } else if (afterCombo) {
          grid->addWidget(widget, gridRow, RowColumn::Field, 1, 2,
                          Qt::AlignVCenter | Qt::AlignLeft);
        } else {
          together.push_back(widget);
        }
        break;
      case ControlKind::Close:
        grid->addWidget(widget, gridRow, RowColumn::Label, 1, RowColumn::Count,
                        Qt::AlignVCenter | Qt::AlignRight);
        break;
      case ControlKind::Text:
        // The captions of an arrow pad's parts have a column, so that its arrows are in line.
        if (hasArrows) {
          grid->addWidget(widget, gridRow, RowColumn::Minus, Qt::AlignVCenter);
        } else {
          together.push_back(widget);
        }
        break;
      default:
        together.push_back(widget);
        break;
    }
  }
  if (together.empty()) return;
  const bool fieldColumnTaken =
      controls.size() > 1 && row.controls[controls.size() - 1].kind == ControlKind::Field;
  PlaceTogether(together, grid, gridRow, hasArrows ? RowColumn::Slider : RowColumn::Minus,
                fieldColumnTaken ? RowColumn::Field : RowColumn::Count);
}
