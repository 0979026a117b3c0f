#include "pages/common/RowDialog.h"

#include <algorithm>
#include <utility>

#include <QAbstractButton>
#include <QTimer>

#include "pages/common/StatusLine.h"
#include "pages/common/Waiting.h"
#include "pages/rows/ValueRowView.h"
#include "resources/ArrowBitmap.h"
#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"

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

void ShowPresentRows(CDialog& dialog, const PageReader::Rows& rows) {
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

RowDialog::RowDialog(int templateNumber, const PageTable& table, CWnd* owner)
    : SettingsDialog(templateNumber, owner),
      table_(table),
      rows_(MakeRowViews(table, *this)),
      reader_(table, *this, rows_),
      menus_(*this, rows_),
      resets_(*this, rows_) {
  installEventFilter(&menus_);
  installEventFilter(&resets_);
}

RowDialog::~RowDialog() = default;

const NotificationMap& RowDialog::Notifications() const {
  if (notifications_) return *notifications_;
  using Event = Notification::Event;
  std::vector<Notification> entries = OwnNotifications();
  const auto add = [&entries](const Notification& entry) {
    const bool isThere = std::ranges::any_of(entries, [&entry](const Notification& other) {
      return entry.id != 0 ? other.id == entry.id : other.event == entry.event;
    });
    if (!isThere) entries.push_back(entry);
  };
  for (const auto& row : rows_) {
    for (const auto& [event, id] : row->OperatedControls()) {
      if (event == Event::HScroll) {
        add({event, 0, [](CDialog& dialog, CSliderCtrl* slider) {
               static_cast<RowDialog&>(dialog).Release(*slider);
             }});
      } else if (event == Event::Passive) {
        add(Passive(id));
      } else {
        add({event, id, [id = id](CDialog& dialog, CSliderCtrl*) {
               static_cast<RowDialog&>(dialog).Act(id);
             }});
      }
    }
  }
  return notifications_.emplace(std::move(entries));
}

void RowDialog::DoDataExchange() {
  resets_.Clear();
  rowsByControl_.clear();
  for (const auto& row : rows_) {
    row->Bind();
    for (const int id : row->Controls()) rowsByControl_.try_emplace(GetDlgItem(id), row.get());
  }
}

RowView* RowDialog::RowOf(const QWidget* control) const {
  const auto found = rowsByControl_.find(control);
  return found == rowsByControl_.end() ? nullptr : found->second;
}

bool RowDialog::OnInitDialog() {
  LocalizeControlTexts(kCaptionCategory, *this);
  PrepareRows();
  // If the model has none of the settings, the page says so, because an empty page looks broken.
  const bool isEmpty = std::ranges::none_of(rows_, [](const auto& row) {
    const bool isReset = std::holds_alternative<ResetRow>(row->Row());  // it resets other rows
    return row->memory.present && !isReset;
  });
  if (isEmpty && !KeepsTemplate(table_, Model().ModelCode)) {
    ShowNotice(ListString(ListText::NoSettings));
  }
  if (isWindow()) PlaceBesideClose(waiting_->MakeLine(this));
  return true;
}

void RowDialog::PrepareRows() {
  const int code = Model().ModelCode;
  const bool keepsTemplate = KeepsTemplate(table_, code);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    rows_[i]->memory.present = !keepsTemplate && Has(table_, i, code);
    rows_[i]->memory.opened.reset();
  }
  if (!keepsTemplate) {
    DrawArrows(*this);
    ShowPresentRows(*this, rows_);
  }
  // Absent rows too, because a host may call their named handlers.
  for (const auto& row : rows_) keepsTemplate ? row->UseTemplate() : row->Prepare();
}

void RowDialog::RefillLists(const ModelData& before) {
  if (KeepsTemplate(table_, Model().ModelCode)) return;
  for (const auto& row : rows_) {
    const auto* list = std::get_if<ListRow>(&row->Row());
    if (list == nullptr || list->entries.Of(before) == list->entries.Of(Model())) continue;
    row->Prepare();
    Item<CComboBox>(list->control).UpdateWidth();
  }
  UpdateRows();
}

void RowDialog::Refresh() {
  const Busy busy(this);
  reader_.ReadAll();
}

void RowDialog::Act(int control) {
  const Busy busy(this);
  if (RowView* const row = RowOf(GetDlgItem(control))) row->Act(control);
}

bool RowDialog::Release(CSliderCtrl& slider) {
  const Busy busy(this);
  auto* const row = static_cast<ValueRowView*>(RowOf(&slider));
  return row == nullptr || row->Release();
}

void RowDialog::OnBusy() {
  if (waiting_ == nullptr) {
    waiting_ = std::make_unique<Waiting>(
        Waiting::Dialog{.projector = [this]() -> CPjtInterface& { return *projector; },
                        .show = [this](bool waiting) { reader_.ShowWaiting(waiting); },
                        .text = [this] { return reader_.WaitingText(); },
                        .retry = [this] { Refresh(); }});
  }
  waiting_->Begin();
}

void RowDialog::OnIdle() {
  waiting_->End(IsLeft());
  if (!std::exchange(stale_, false) || IsLeft()) return;
  QTimer::singleShot(0, this, [this] {
    if (IsCreated()) Refresh();
  });
}

void RowDialog::OnLeave() { waiting_->Abandon(); }

void RowDialog::OnReturn() { waiting_->Return(); }

}  // namespace AdvancedControl
