#include "pages/common/RowDialog.h"

#include <algorithm>
#include <utility>

#include <QShortcut>
#include <QTimer>

#include "pages/common/StatusLine.h"
#include "pages/common/Waiting.h"
#include "pages/rows/ValueRowView.h"
#include "toolkit/CSliderCtrl.h"

namespace AdvancedControl {

RowDialog::RowDialog(int templateNumber, const PageTable& table, CWnd* owner)
    : SettingsDialog(templateNumber, owner),
      rows_(table, *this),
      reader_(table, *this, rows_.All()),
      menus_(*this, rows_.All()),
      resets_(*this, rows_.All()),
      pending_(*this) {
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
  for (const auto& row : rows_.All()) {
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
  reader_.Restart();
  rows_.Bind();
}

void RowDialog::PrepareRows() { rows_.Prepare(); }

void RowDialog::RefillLists(const ModelData& before) {
  rows_.RefillLists(before);
  UpdateRows();
}

bool RowDialog::OnInitDialog() {
  LocalizeControlTexts(kCaptionCategory, *this);
  PrepareRows();
  // If the model has none of the settings, the page says so, because an empty page looks broken.
  if (rows_.IsEmpty()) ShowNotice(ListString(ListText::NoSettings));
  if (isWindow()) PlaceBesideClose(waiting_->MakeLine(this));
  if (isWindow() && findChild<QShortcut*>() == nullptr) {
    connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, this, [this] {
      if (!IsBusy()) ReadAgain();
    });
  }
  return true;
}

void RowDialog::Refresh() {
  const Busy busy(this);
  reader_.ReadAll();
}

void RowDialog::Act(int control) {
  const Busy busy(this);
  if (RowView* const row = rows_.Of(GetDlgItem(control))) row->Act(control);
}

bool RowDialog::Release(CSliderCtrl& slider) {
  const Busy busy(this);
  auto* const row = static_cast<ValueRowView*>(rows_.Of(&slider));
  return row == nullptr || row->Release();
}

HandlerWatch& RowDialog::Watch() {
  if (waiting_ == nullptr) {
    waiting_ = std::make_unique<Waiting>(
        Waiting::Dialog{.projector = [this]() -> CPjtInterface& { return *projector; },
                        .show = [this](bool waiting) { reader_.ShowWaiting(waiting); },
                        .text = [this] { return reader_.WaitingText(); },
                        .retry = [this] { Refresh(); },
                        .readAgain =
                            [this](bool left) {
                              if (!left)
                                QTimer::singleShot(0, this, [this] {
                                  if (IsCreated()) Refresh();
                                });
                            }});
  }
  return *waiting_;
}

void RowDialog::Handle(const Notification& entry, CSliderCtrl* slider) {
  pending_.Run(entry, slider);
}

void RowDialog::KeepInput(const Notification& entry, CSliderCtrl* slider) {
  pending_.Keep(entry, slider);
}

RowView* RowDialog::RowOf(const QWidget* control) const { return rows_.Of(control); }

}  // namespace AdvancedControl
