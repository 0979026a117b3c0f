// What a user's act does: here every command starts that is no read of a refresh. What value rows
// do is in ValueRows.cpp.

#include <utility>

#include <QCheckBox>

#include "pages/common/RowDialog.h"
#include "settings/RowUse.h"
#include "toolkit/CComboBox.h"

bool RowDialog::Owns(const PageRow& row, int control) {
  if (const auto* value = std::get_if<ValueRow>(&row)) {
    return control == value->Control() || control == value->ids.minus ||
           control == value->ids.plus || control == value->reset.button;
  }
  return control == ControlOf(row);
}

void RowDialog::Act(int control) {
  const Busy busy(this);
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    if (!Owns(table_.rows[i], control)) continue;
    std::visit([&](const auto& row) { Operate(row, bound_[i], control); }, table_.rows[i]);
    return;
  }
}

bool RowDialog::Release(CSliderCtrl& slider) {
  const Busy busy(this);
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    const auto* row = std::get_if<ValueRow>(&table_.rows[i]);
    if (row != nullptr && bound_[i].value.Owns(slider)) return Drag(*row, bound_[i].value);
  }
  return true;
}

void RowDialog::Operate(const ListRow& row, Bound& bound, int) {
  CComboBox& list = List(row.control);
  const auto chosen = list.SelectedValue();
  if (!chosen || !row.send) return;
  if (*chosen == row.rules.placeholder.Of(Model().ModelCode)) {
    if (const auto value = Read(*projector, *row.read)) list.SelectValue(*value);
    return;
  }
  const auto source = AskFor(row.of);
  if (!source) return;
  const int value = row.rules.sendsPosition ? list.currentIndex() : *chosen;
  if (row.rules.tellsText) projector->SettingText = list.currentText().toStdString();
  const bool accepted =
      Perform(*projector, *row.Sending(*source), value, Model().ModelCode).accepted;
  if (row.rules.readsBackAlways)
    RefreshRow(static_cast<std::size_t>(&bound - bound_.data()), source);
  if (accepted) return;
  if (table_.refusedIsReadBack || row.rules.refused != Refused::Silent) ReadBack(row, *source);
  if (row.rules.error != 0) ShowError(row.rules.error);
}

void RowDialog::ReadBack(const ListRow& row, int source) {
  const auto value = row.read ? Read(*projector, *row.Reading(source)) : std::nullopt;
  if (!value) return;
  if (row.rules.refused == Refused::ReadsBackPosition) {
    List(row.control).Select(*value);
  } else {
    Select(row, *value);
  }
}

void RowDialog::ReadBack(int control) {
  for (const PageRow& row : table_.rows) {
    if (ControlOf(row) != control) continue;
    const auto* list = std::get_if<ListRow>(&row);
    if (const auto source = list != nullptr ? AskFor(list->of) : Source()) ReadBack(*list, *source);
  }
}

void RowDialog::Operate(const CheckRow& row, Bound&, int) {
  auto& check = Item<QCheckBox>(row.control);
  if (Perform(*projector, row.send, check.isChecked() ? 1 : 0, Model().ModelCode).accepted) return;
  if (const auto value = Read(*projector, row.read)) check.setChecked(*value != 0);
}

void RowDialog::Operate(const ActionRow& row, Bound&, int) {
  const int position = row.list != 0 ? List(row.list).currentIndex() : 0;
  if (position < 0) return;
  const bool done = Perform(*projector, row.call, position).accepted;
  ReadAgainAfter(row.rereads, done);
  if (!done && row.error != 0) ShowError(row.error);
}

void RowDialog::Operate(const ResetRow& row, Bound&, int) {
  const ResetEntry* const reset = ChosenReset(row.control);
  const bool done = reset != nullptr && Perform(*projector, Named(reset->operation)).accepted;
  if (done && row.rereads == Rereads::ItsRow) ShowAgain(reset->of);
  ReadAgainAfter(row.rereads, done);
}

void RowDialog::ReadAgainAfter(Rereads rereads, bool done) {
  if (rereads == Rereads::Always || (rereads == Rereads::WhenDone && done)) ReadAgain();
}

const ResetEntry* RowDialog::ChosenReset(int button) const {
  for (const PageRow& row : table_.rows) {
    const auto* reset = std::get_if<ResetRow>(&row);
    if (reset == nullptr || reset->control != button) continue;
    const auto chosen = List(reset->list).SelectedValue();
    const bool listed = chosen && std::cmp_less(*chosen, reset->entries.size());
    return listed ? &reset->entries[static_cast<std::size_t>(*chosen)] : nullptr;
  }
  return nullptr;
}
