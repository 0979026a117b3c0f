#include "host/FindLine.h"

#include <utility>

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QCompleter>
#include <QKeyEvent>
#include <QStringListModel>
#include <QToolTip>

#include "host/CAdvanceDlg.h"
#include "i18n/LocalizeControlTexts.h"
#include "pages/common/CTabPage.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/CTabCtrl.h"

FindLine::FindLine(QWidget* parent) : QLineEdit(parent) {
  setClearButtonEnabled(true);
  auto* completer = new QCompleter(new QStringListModel(this), this);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setFilterMode(Qt::MatchContains);
  completer->setMaxVisibleItems(12);
  setCompleter(completer);
  connect(completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
          &FindLine::Choose);
  hide();
}

void FindLine::Start(std::vector<Place> places) {
  places_ = std::move(places);
  QStringList texts;
  for (const Place& place : places_) {
    texts << place.caption + QStringLiteral(" \u2014 ") + place.tabCaption;
  }
  static_cast<QStringListModel*>(completer()->model())->setStringList(texts);
  const QString name = CatalogString(kListCategory, ListText::FindSetting);
  setAccessibleName(name);
  setPlaceholderText(name + QStringLiteral("…"));
  clear();
  show();
  raise();
  setFocus(Qt::ShortcutFocusReason);
}

void FindLine::Choose(const QModelIndex& completion) {
  const auto* shown = static_cast<const QAbstractProxyModel*>(completer()->completionModel());
  const auto& place = places_[static_cast<std::size_t>(shown->mapToSource(completion).row())];
  hide();
  Q_EMIT Found(place.tab, place.control);
}

// The completions pass on their keys; the one marked is meant, or the first.
void FindLine::keyPressEvent(QKeyEvent* event) {
  QAbstractItemView* completions = completer()->popup();
  if (event->key() == Qt::Key_Escape) {
    completions->hide();
    hide();
    return;
  }
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  QModelIndex chosen = completions->isVisible() ? completions->currentIndex() : QModelIndex();
  if (!chosen.isValid() && !text().isEmpty()) {
    completer()->setCompletionPrefix(text());
    chosen = completer()->completionModel()->index(0, 0);
  }
  completions->hide();
  if (chosen.isValid()) {
    Choose(chosen);
  } else {
    QToolTip::showText(mapToGlobal(QPoint()), CatalogString(kListCategory, ListText::NothingFound),
                       this);
  }
}

void FindLine::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const bool stays =
      event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (!stays) hide();
}

void CAdvanceDlg::StartFinding() {
  std::vector<FindLine::Place> places;
  for (int tab = 0; tabs_ != nullptr && tab < tabs_->count(); ++tab) {
    const CTabPage* page = PageBehind(tab);
    if (page == nullptr) continue;
    QString last;  // the parts of a row bear one caption
    for (const auto& [caption, control] : page->PresentRows()) {
      if (std::exchange(last, caption) == caption) continue;
      places.push_back({caption, tabs_->tabText(tab), tab, control});
    }
  }
  find_->Start(std::move(places));
}

// Reading another tab may end with anything: also with the dialog closed, or with a further tab.
void CAdvanceDlg::GoTo(int tab, int control) {
  tabs_->setFocus(Qt::OtherFocusReason);  // of a row that is grey
  tabs_->setCurrentIndex(tab);
  if (!IsCreated() || tabs_->currentIndex() != tab || shownPage_ == nullptr) return;
  if (QWidget* found = shownPage_->GetDlgItem(control); found->isEnabledTo(this)) {
    found->setFocus(Qt::OtherFocusReason);
  }
}
