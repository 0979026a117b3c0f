// Finds a setting in the dialog and shows it.

#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>

#include "host/CAdvanceDlg.h"
#include "host/FindLine.h"
#include "pages/common/CTabPage.h"
#include "pages/rows/RowTexts.h"
#include "settings/PageTables.h"
#include "toolkit/CTabCtrl.h"

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

}  // namespace

void CAdvanceDlg::StartFinding() {
  std::vector<FindLine::Place> places;
  const auto add = [&](FindLine::Place place, const PageTable& table) {
    if (KeepsTemplate(table, model_.ModelCode)) return;
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
      const PageRow& row = table.rows[i];
      if (!Has(table, i, model_.ModelCode) || std::holds_alternative<ResetRow>(row)) continue;
      const QString caption = CaptionText(row);
      if (std::exchange(place.caption, caption) == caption)
        continue;  // further parts of the same row
      place.control = ControlOf(row);
      places.push_back(place);
    }
  };
  for (int tab = 0; tabs_ != nullptr && tab < tabs_->count(); ++tab) {
    const auto page = PageIdOfTab(tab);
    if (!page) continue;
    const QString tabCaption = tabs_->tabText(tab);
    add({.where = tabCaption, .tab = tab}, TableOf(*page));
    for (const PagePopUp& popUp : PopUpsOf(*page, model_)) {
      const QString opener = CaptionText(FindRow(TableOf(*page), popUp.control));
      add({.where = WhatAndWhere(opener, tabCaption), .tab = tab, .popUp = popUp}, *popUp.table);
    }
  }
  find_->Start(std::move(places));
}

// While the tab is being read, the user may close the dialog, select another tab, or search again.
void CAdvanceDlg::GoTo(int tab, int control, const std::optional<PagePopUp>& popUp) {
  tabs_->setFocus(Qt::OtherFocusReason);  // used if the row is disabled
  tabs_->setCurrentIndex(tab);
  if (!IsCreated() || tabs_->currentIndex() != tab || shownPage_ == nullptr) return;
  if (find_->isVisible()) return;
  FocusOn(*shownPage_, popUp ? popUp->control : control);
  if (popUp) OpenPopUp(popUp->button, control);
}

// The button's handler runs until the pop-up is closed. While the dialog is still reading, the
// button does nothing, so it is tried again later.
void CAdvanceDlg::OpenPopUp(int button, int control, std::chrono::milliseconds delay) {
  auto* opener = qobject_cast<QAbstractButton*>(shownPage_->GetDlgItem(button));
  QTimer::singleShot(delay, opener, [this, opener, button, control] {
    if (!opener->isVisible() || find_->isVisible()) return;
    if (IsBusy()) return OpenPopUp(button, control, kLater);
    if (!opener->isEnabled()) return;
    QTimer::singleShot(0, this, [this, control] {
      auto* popUp = qobject_cast<CDialog*>(QApplication::activeModalWidget());
      if (popUp != nullptr && popUp->Owner() != nullptr && popUp->Owner()->window() == this) {
        FocusOn(*popUp, control);
      }
    });
    opener->setFocus(Qt::OtherFocusReason);  // gets the focus back after the pop-up
    opener->click();
  });
}
