#include "pages/common/PendingInput.h"

#include <algorithm>
#include <utility>

#include <QAbstractButton>
#include <QKeyEvent>

#include "pages/common/SettingsDialog.h"
#include "pages/rows/ValueRowView.h"
#include "toolkit/CSliderCtrl.h"

namespace AdvancedControl {

namespace {

bool IsPress(const QEvent& event) {
  if (event.type() == QEvent::KeyPress) return !static_cast<const QKeyEvent&>(event).isAutoRepeat();
  return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

bool IsEnter(const QEvent& event) {
  const auto is = [&event](int key) { return static_cast<const QKeyEvent&>(event).key() == key; };
  return event.type() == QEvent::KeyPress && (is(Qt::Key_Return) || is(Qt::Key_Enter));
}

}  // namespace

void PendingInput::Run(const Notification& entry, CSliderCtrl* slider) {
  SettingsDialog& dialog = host_.Dialog();
  const QWidget* control = slider != nullptr ? slider : dialog.GetDlgItem(entry.id);
  auto* row = dynamic_cast<ValueRowView*>(host_.RowOf(control));
  const bool isNumber = row != nullptr && row->Widgets().Change(*control);
  // A pop-up or a message box may run inside a handler.
  if (!isNumber || row_ != nullptr) return entry.handle(dialog, slider);
  row_ = row;
  acts_.push_back({&entry, slider, slider != nullptr ? slider->value() : 0});
  Watch(true);
  while (!acts_.empty()) {
    const CPjtInterface::Tally before = dialog.projector->Sent();
    Handle(acts_.front());
    const CPjtInterface::Tally after = dialog.projector->Sent();
    const bool failed = after.refused > before.refused || after.unanswered > before.unanswered;
    if (failed || dialog.projector->IsAbandoned() || !dialog.isVisible()) Drop();
    acts_.erase(acts_.begin());
    Show();
  }
  Watch(false);
  row_ = nullptr;
}

void PendingInput::Handle(const Act& act) {
  if (act.slider != nullptr) act.slider->setValue(act.position);
  act.entry->handle(host_.Dialog(), act.slider);
}

void PendingInput::Watch(bool on) {
  row_->memory.collects = on;
  row_->Widgets().Collect(on);
  pressed_ = nullptr;
  SettingsDialog& dialog = host_.Dialog();
  disconnect(inputDropped_);
  for (const int id : ControlsOf(row_->Row())) {
    QWidget* control = dialog.GetDlgItem(id);
    on ? control->installEventFilter(this) : control->removeEventFilter(this);
  }
  if (!on) return;
  const auto* window = qobject_cast<const InputDialog*>(dialog.window());
  if (window == nullptr) return;
  inputDropped_ = connect(window, &InputDialog::InputDropped, this, [this](const QWidget* target) {
    if (host_.RowOf(target) != row_) Drop();
  });
}

bool PendingInput::Keeps(const QWidget& control) const {
  return row_ != nullptr && !host_.Dialog().projector->IsAbandoned() &&
         host_.RowOf(&control) == row_ && row_->Widgets().Change(control);
}

// Only a button that was pressed during the wait: the release of a button held since before, and
// the repeats of a held one, are no further presses.
void PendingInput::Keep(const Notification& entry, CSliderCtrl* slider) {
  if (slider != nullptr) {
    if (acts_.size() > 1 && acts_.back().slider != nullptr) acts_.pop_back();
    acts_.push_back({&entry, slider, slider->value(), true});
  } else {
    const auto* button = qobject_cast<const QAbstractButton*>(host_.Dialog().GetDlgItem(entry.id));
    if (button->isDown() || std::exchange(pressed_, nullptr) != button) return;
    acts_.push_back({.entry = &entry, .slider = nullptr, .kept = true});
  }
  Show();
}

// A button leaves Enter to its dialog, which takes no input while the row waits.
bool PendingInput::eventFilter(QObject* control, QEvent* event) {
  if (IsPress(*event)) pressed_ = control;
  auto* button = qobject_cast<QAbstractButton*>(control);
  if (button == nullptr || !IsEnter(*event)) return false;
  if (IsPress(*event)) button->click();
  return true;
}

// The act under way stays, because its handler runs.
void PendingInput::Drop() {
  bool movedSlider = false;
  for (; acts_.size() > 1; acts_.pop_back()) movedSlider |= acts_.back().slider != nullptr;
  Show();
  if (movedSlider) row_->Widgets().ReturnSlider();
}

// What was kept is pending until the projector has answered.
void PendingInput::Show() {
  if (std::ranges::none_of(acts_, &Act::kept)) return row_->Widgets().ShowPending({});
  const Range bounds = row_->Numbers().value_or(kUnbounded);
  std::optional<int> number = row_->Position();
  bool keepsSlider = false;
  for (const Act& act : acts_) {
    if (act.slider != nullptr) {
      number = act.position;
      keepsSlider = &act != acts_.data();
    } else if (number) {
      const int step = row_->Widgets().IsPlus(*host_.Dialog().GetDlgItem(act.entry->id)) ? 1 : -1;
      number = std::clamp(*number + step, bounds.minimum, bounds.maximum);
    }
  }
  row_->Widgets().ShowPending({.number = number, .keepsSlider = keepsSlider});
}

}  // namespace AdvancedControl
