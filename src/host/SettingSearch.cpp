#include "host/SettingSearch.h"

#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>

#include "host/DialogPages.h"
#include "pages/common/CTabPage.h"
#include "pages/rows/RowTexts.h"
#include "settings/PageTables.h"
#include "toolkit/CTabCtrl.h"

namespace AdvancedControl {

namespace {

constexpr std::chrono::milliseconds kLater{50};

void FocusOn(CDialog& dialog, int control) {
  dialog.Highlight(control);
  QWidget* found = dialog.GetDlgItem(control);
  if (found != nullptr && found->isEnabledTo(found->window())) {
    found->window()->setAttribute(Qt::WA_KeyboardFocusChange);  // makes the focus visible
    found->setFocus(Qt::OtherFocusReason);
  }
}

// Whether the user works in another window of the program now.
bool WorksElsewhere(const CDialog& dialog) {
  const QWidget* active = QApplication::activeWindow();
  return active != nullptr && active != dialog.window();
}

}  // namespace

void SettingSearch::Start() {
  std::vector<FindLine::Place> places;
  const auto add = [&places](FindLine::Place place, const PageTable& table,
                             const ModelData& model) {
    if (KeepsTemplate(table, model.ModelCode)) return;
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
      const PageRow& row = table.rows[i];
      if (!Has(table, i, model.ModelCode) || std::holds_alternative<ResetRow>(row)) continue;
      const QString caption = CaptionText(row);
      if (std::exchange(place.caption, caption) == caption)
        continue;  // further parts of the same row
      place.control = ControlOf(row);
      places.push_back(place);
    }
  };
  for (int tab = 0; tab < pages_.Tabs()->count(); ++tab) {
    const auto id = pages_.PageIdOfTab(tab);
    if (!id) continue;
    const CTabPage& page = pages_.Page(*id);
    const ModelData& model = page.Model();
    const QString where = page.accessibleName();  // the tab's caption
    add({.where = where, .tab = tab}, TableOf(*id), model);
    for (const PagePopUp& popUp : PopUpsOf(*id, model)) {
      const QString opener = CaptionText(FindRow(TableOf(*id), popUp.control));
      add({.where = WhatAndWhere(opener, where), .tab = tab, .popUp = popUp}, *popUp.table, model);
    }
  }
  if (line_ == nullptr) {
    line_ = new FindLine(&dialog_);
    connect(line_, &FindLine::Found, this, &SettingSearch::GoTo);
  }
  line_->Start(std::move(places));
}

void SettingSearch::Stop() {
  if (line_ != nullptr) line_->Stop();
}

// While the tab is being read, the user may close the dialog, select another tab, or search again.
void SettingSearch::GoTo(const FindLine::Place& place) {
  CTabCtrl& tabs = *pages_.Tabs();
  tabs.setFocus(Qt::OtherFocusReason);  // used if the row is disabled
  tabs.setCurrentIndex(place.tab);
  if (!dialog_.isVisible() || tabs.currentIndex() != place.tab || pages_.Shown() == nullptr) return;
  if (line_->isVisible()) return;
  FocusOn(*pages_.Shown(), place.popUp ? place.popUp->control : place.control);
  if (place.popUp) OpenPopUp(place.popUp->button, place.control);
}

// The button's handler runs until the pop-up is closed. While the dialog is still reading, the
// button does nothing, so it is tried again later. A pop-up must not take the input from another
// window.
void SettingSearch::OpenPopUp(int button, int control, std::chrono::milliseconds delay) {
  auto* opener = qobject_cast<QAbstractButton*>(pages_.Shown()->GetDlgItem(button));
  if (opener == nullptr) return;  // unreachable: the search ends with the pages that it knows
  QTimer::singleShot(delay, opener, [this, opener, button, control] {
    if (!opener->isVisible() || line_->isVisible()) return;
    if (dialog_.IsBusy()) return OpenPopUp(button, control, kLater);
    if (WorksElsewhere(dialog_)) return;
    QTimer::singleShot(0, this, [this, control] {
      auto* popUp = qobject_cast<CDialog*>(QApplication::activeModalWidget());
      if (popUp != nullptr && popUp->Owner() != nullptr && popUp->Owner()->window() == &dialog_) {
        FocusOn(*popUp, control);
      }
    });
    opener->setFocus(Qt::OtherFocusReason);  // gets the focus back after the pop-up
    opener->click();
  });
}

}  // namespace AdvancedControl
