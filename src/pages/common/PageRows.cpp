#include "pages/common/PageRows.h"

#include <algorithm>
#include <utility>

#include <QAbstractButton>

#include "resources/ArrowBitmap.h"
#include "toolkit/CComboBox.h"

namespace AdvancedControl {

namespace {

// Arrow buttons show a picture; their text becomes their accessible name.
void DrawArrows(CDialog& dialog) {
  static constexpr std::pair<std::string_view, int> kBitmaps[] = {{"↑", BitmapId::ArrowUp},
                                                                  {"↓", BitmapId::ArrowDown},
                                                                  {"←", BitmapId::ArrowLeft},
                                                                  {"→", BitmapId::ArrowRight}};
  for (const RowTemplate& row : dialog.Template()->rows) {
    for (const ControlTemplate& control : row.controls) {
      if (control.kind != ControlKind::Arrow) continue;
      auto& button = dialog.Item<QAbstractButton>(control.id);
      button.setAccessibleName(button.text());
      button.setText({});
      const int side =
          button.fontMetrics().height();  // gives the same height as buttons with a text
      button.setIconSize({side, side});
      for (const auto& [sign, bitmap] : kBitmaps) {
        if (sign == control.caption) button.setIcon(ArrowBitmap(bitmap));
      }
    }
  }
}

void ShowPresentRows(CDialog& dialog, const PageRows::Views& rows) {
  // Several rows of the table may share a row of the template, which is shown if any of them is
  // present.
  for (const bool present : {false, true}) {
    for (const auto& row : rows) {
      if (row->memory.present == present) dialog.ShowRow(ControlOf(row->Row()), present);
    }
  }
  for (const auto& row : rows) {
    QWidget* control = dialog.GetDlgItem(ControlOf(row->Row()));
    if (row->memory.present || control->isHidden()) continue;
    QSizePolicy keepsItsPlace = control->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    control->setSizePolicy(keepsItsPlace);
    control->hide();
  }
}

}  // namespace

PageRows::PageRows(const PageTable& table, RowHost& host)
    : table_(table), host_(host), views_(MakeRowViews(table, host)) {}

void PageRows::Bind() {
  byControl_.clear();
  for (const auto& row : views_) {
    row->Bind();
    for (const int id : row->Controls()) {
      byControl_.try_emplace(host_.Dialog().GetDlgItem(id), row.get());
    }
  }
}

RowView* PageRows::Of(const QWidget* control) const {
  const auto found = byControl_.find(control);
  return found == byControl_.end() ? nullptr : found->second;
}

bool PageRows::KeepsTemplate() const {
  return ::KeepsTemplate(table_, host_.Dialog().Model().ModelCode);
}

void PageRows::Prepare() {
  const int code = host_.Dialog().Model().ModelCode;
  const bool keepsTemplate = KeepsTemplate();
  for (std::size_t i = 0; i < views_.size(); ++i) {
    views_[i]->memory = {.present = !keepsTemplate && Has(table_, i, code)};
  }
  if (!keepsTemplate) {
    DrawArrows(host_.Dialog());
    ShowPresentRows(host_.Dialog(), views_);
  }
  // Absent rows too, because a host may call their named handlers.
  for (const auto& row : views_) keepsTemplate ? row->UseTemplate() : row->Prepare();
}

void PageRows::RefillLists(const ModelData& before) {
  if (KeepsTemplate()) return;
  const ModelData& model = host_.Dialog().Model();
  for (const auto& row : views_) {
    const auto* list = std::get_if<ListRow>(&row->Row());
    if (list == nullptr || list->entries.Of(before) == list->entries.Of(model)) continue;
    auto& entries = host_.Dialog().Item<CComboBox>(list->control);
    entries.hidePopup();  // the user might choose another entry than the one seen
    row->Prepare();
    entries.UpdateWidth();
  }
}

bool PageRows::IsEmpty() const {
  return !KeepsTemplate() && std::ranges::none_of(views_, [](const auto& row) {
    const bool isReset = std::holds_alternative<ResetRow>(row->Row());  // it resets other rows
    return row->memory.present && !isReset;
  });
}

}  // namespace AdvancedControl
