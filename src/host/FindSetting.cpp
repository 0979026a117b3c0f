// Finding a setting of the dialog, and going to it.

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

void FocusOn(const CDialog& dialog, int control) {
  QWidget* found = dialog.GetDlgItem(control);
  if (found != nullptr && found->isEnabledTo(found->window())) {
    found->window()->setAttribute(Qt::WA_KeyboardFocusChange);  // so that the focus is seen
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
      if (std::exchange(place.caption, caption) == caption) continue;  // the parts of a row
      place.control = ControlOf(row);
      places.push_back(place);
    }
  };
  for (int tab = 0; tabs_ != nullptr && tab < tabs_->count(); ++tab) {
    const auto page = PageIdBehind(tab);
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

// Reading another tab may end with anything: also with the dialog closed, with a further tab, or
// with a further search.
void CAdvanceDlg::GoTo(int tab, int control, const std::optional<PagePopUp>& popUp) {
  tabs_->setFocus(Qt::OtherFocusReason);  // of a row that is grey
  tabs_->setCurrentIndex(tab);
  if (!IsCreated() || tabs_->currentIndex() != tab || shownPage_ == nullptr) return;
  if (find_->isVisible()) return;
  FocusOn(*shownPage_, popUp ? popUp->control : control);
  if (popUp) OpenPopUp(popUp->button, control);
}

// The button runs the pop-up until it is closed. A dialog that still reads opens none.
void CAdvanceDlg::OpenPopUp(int button, int control, std::chrono::milliseconds delay) {
  auto* opener = qobject_cast<QAbstractButton*>(shownPage_->GetDlgItem(button));
  QTimer::singleShot(delay, opener, [this, opener, button, control] {
    if (!opener->isVisible() || find_->isVisible()) return;
    if (IsBusy()) return OpenPopUp(button, control, kLater);
    if (!opener->isEnabled()) return;
    QTimer::singleShot(0, this, [this, control] {
      const auto* popUp = qobject_cast<const CDialog*>(QApplication::activeModalWidget());
      if (popUp != nullptr && popUp->Owner() != nullptr && popUp->Owner()->window() == this) {
        FocusOn(*popUp, control);
      }
    });
    opener->setFocus(Qt::OtherFocusReason);  // where the focus is when the pop-up has gone
    opener->click();
  });
}
