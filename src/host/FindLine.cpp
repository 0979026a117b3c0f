#include "host/FindLine.h"

#include <algorithm>
#include <utility>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStringListModel>
#include <QTimer>
#include <QToolTip>

#include "host/CAdvanceDlg.h"
#include "i18n/LocalizeControlTexts.h"
#include "pages/common/CTabPage.h"
#include "pages/rows/RowTexts.h"
#include "settings/CatalogNumbers.h"
#include "settings/PageTables.h"
#include "toolkit/CTabCtrl.h"

namespace {

const QString kSeparator = QStringLiteral(" \u2014 ");
constexpr std::chrono::milliseconds kLater{50};

}  // namespace

FindLine::FindLine(QWidget* parent) : QLineEdit(parent) {
  setClearButtonEnabled(true);
  auto* completer = new QCompleter(new QStringListModel(this), this);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setFilterMode(Qt::MatchContains);
  completer->setMaxVisibleItems(12);
  setCompleter(completer);
  // Connected with the completer as context, because Qt disconnects a line edit from its completer
  // when it loses the focus.
  connect(completer, qOverload<const QModelIndex&>(&QCompleter::activated), completer,
          [this](const QModelIndex& completion) { Choose(completion); });
  hide();
}

void FindLine::Start(std::vector<Place> places) {
  places_ = std::move(places);
  QStringList texts;
  int widest = 0;
  for (const Place& place : places_) {
    texts << place.caption + kSeparator + place.where;
    widest = std::max(widest, fontMetrics().horizontalAdvance(texts.last()));
  }
  static_cast<QStringListModel*>(completer()->model())->setStringList(texts);
  QAbstractItemView* completions = completer()->popup();
  const int around = completions->verticalScrollBar()->sizeHint().width() + fontMetrics().height();
  completions->setMinimumWidth(std::min(widest + around, window()->width()));
  const QString name = CatalogString(kListCategory, ListText::FindSetting);
  setAccessibleName(name);
  setPlaceholderText(name + QStringLiteral("…"));
  clear();
  show();
  raise();
  setFocus(Qt::ShortcutFocusReason);
}

void FindLine::Choose(const QModelIndex& completion) {
  if (!completion.isValid()) return;
  const auto* shown = static_cast<const QAbstractProxyModel*>(completer()->completionModel());
  // A copy, because `Start` may replace the places while the tab is being read.
  const Place place = places_[static_cast<std::size_t>(shown->mapToSource(completion).row())];
  completer()->popup()->hide();
  hide();
  // The list of completions must be closed before the tab is read.
  QTimer::singleShot(0, this, [this, place] { Q_EMIT Found(place); });
}

// The list of completions passes its keys on to the line. Enter chooses the marked completion, or
// else the first one.
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
      add({.where = opener + kSeparator + tabCaption, .tab = tab, .popUp = popUp}, *popUp.table);
    }
  }
  find_->Start(std::move(places));
}

namespace {

void FocusOn(const CDialog& dialog, int control) {
  QWidget* found = dialog.GetDlgItem(control);
  if (found != nullptr && found->isEnabledTo(found->window())) {
    found->window()->setAttribute(Qt::WA_KeyboardFocusChange);  // makes the focus visible
    found->setFocus(Qt::OtherFocusReason);
  }
}

}  // namespace

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
      const auto* popUp = qobject_cast<const CDialog*>(QApplication::activeModalWidget());
      if (popUp != nullptr && popUp->Owner() != nullptr && popUp->Owner()->window() == this) {
        FocusOn(*popUp, control);
      }
    });
    opener->setFocus(Qt::OtherFocusReason);  // gets the focus back after the pop-up
    opener->click();
  });
}
