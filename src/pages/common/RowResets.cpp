#include "pages/common/RowResets.h"

#include <algorithm>

#include <QApplication>
#include <QHoverEvent>
#include <QToolButton>

#include "pages/rows/ResetRowView.h"
#include "toolkit/Icons.h"
#include "toolkit/TemplateControls.h"
#include "toolkit/WindowText.h"

namespace AdvancedControl {

namespace {

constexpr int kGap = 6;  // between the number and the button

const RowTemplate& TemplateRowOf(const CDialog& dialog, int control) {
  return *std::ranges::find_if(dialog.Template()->rows, [control](const RowTemplate& row) {
    return std::ranges::find(row.controls, control, &ControlTemplate::id) != row.controls.end();
  });
}

QWidget* LastButton(const CDialog& dialog, const RowTemplate& row) {
  QWidget* last = nullptr;
  for (const ControlTemplate& control : row.controls) {
    QWidget* widget = dialog.GetDlgItem(control.id);
    if (qobject_cast<QAbstractButton*>(widget) != nullptr) last = widget;
  }
  return last;
}

}  // namespace

RowResets::RowResets(RowHost& host, const PageReader::Rows& rows) : host_(host), rows_(rows) {
  host_.Dialog().setAttribute(Qt::WA_Hover);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
    const SettingsDialog& dialog = host_.Dialog();
    const auto isHere = [&dialog](const QWidget* control) {
      return control != nullptr && dialog.isAncestorOf(control);
    };
    if (isHere(before) || isHere(now)) Update();
  });
}

void RowResets::Clear() {
  for (const auto& [row, button] : buttons_) delete button;
  buttons_.clear();
  hovered_ = nullptr;
}

bool RowResets::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
      hovered_ = RowAt(static_cast<QHoverEvent*>(event)->position().toPoint());
      Update();
      break;
    case QEvent::HoverLeave:
    case QEvent::Hide:
      hovered_ = nullptr;
      Update();
      break;
    case QEvent::LayoutRequest:
    case QEvent::Resize:
      for (const auto& [row, button] : buttons_) button->setGeometry(PlaceOf(*row));
      break;
    default:
      break;
  }
  return false;
}

ResetRowView* RowResets::Resets() const {
  for (const auto& row : rows_) {
    if (std::holds_alternative<ResetRow>(row->Row()) && row->memory.present) {
      return static_cast<ResetRowView*>(row.get());
    }
  }
  return nullptr;
}

QRect RowResets::PlaceOf(const RowView& row) const {
  const SettingsDialog& dialog = host_.Dialog();
  const QRect field = dialog.GetDlgItem(std::get<ValueRow>(row.Row()).ids.field)->geometry();
  const int side = ResetButtonSide(dialog);
  const int left = dialog.isRightToLeft() ? field.left() - kGap - side : field.right() + 1 + kGap;
  return {left, field.center().y() - side / 2, side, side};
}

RowView* RowResets::RowAt(QPoint at) const {
  for (const auto& row : rows_) {
    if (!row->memory.present || !std::holds_alternative<ValueRow>(row->Row())) continue;
    const QRect around = host_.Dialog().RowRect(ControlOf(row->Row())).united(PlaceOf(*row));
    if (around.contains(at)) return row.get();
  }
  return nullptr;
}

QToolButton* RowResets::ButtonOf(RowView& row) {
  const auto found = buttons_.find(&row);
  if (found != buttons_.end()) return found->second;
  ResetRowView* const resets = Resets();
  const QString what = resets != nullptr ? resets->TextFor(row) : QString();
  if (what.isEmpty()) return nullptr;
  SettingsDialog& dialog = host_.Dialog();
  auto* button = new QToolButton(&dialog);
  button->setAutoRaise(true);
  button->setIcon(ThemedIcon(IconName::Reset));
  button->setIconSize(IconSize(dialog));
  const RowTemplate& list = TemplateRowOf(dialog, ControlOf(resets->Row()));
  const QString name =
      WindowText(*dialog.GetDlgItem(list.controls.front().id)) + QStringLiteral(": ") + what;
  button->setAccessibleName(name);
  button->setToolTip(name);
  connect(button, &QAbstractButton::clicked, &dialog, [this, &row] { Resets()->Reset(row); });
  QWidget::setTabOrder(LastButton(dialog, TemplateRowOf(dialog, ControlOf(row.Row()))), button);
  return buttons_[&row] = button;
}

RowView* RowResets::FocusedRow() const {
  QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr || !host_.Dialog().isAncestorOf(focus)) return nullptr;
  for (const auto& [row, button] : buttons_) {
    if (button == focus) return row;
  }
  RowView* row = host_.RowOf(focus);
  return row != nullptr && std::holds_alternative<ValueRow>(row->Row()) ? row : nullptr;
}

void RowResets::Update() {
  RowView* const focused = FocusedRow();
  for (RowView* row : {hovered_, focused}) {
    QToolButton* button = row != nullptr ? ButtonOf(*row) : nullptr;
    if (button == nullptr || button->isVisible()) continue;
    button->setGeometry(PlaceOf(*row));
    button->show();
  }
  for (const auto& [row, button] : buttons_) {
    if (row != hovered_ && row != focused) button->hide();
  }
}

}  // namespace AdvancedControl
