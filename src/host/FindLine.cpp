#include "host/FindLine.h"

#include <algorithm>
#include <utility>

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStringListModel>
#include <QTimer>
#include <QToolTip>

#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"

namespace AdvancedControl {

QString WhatAndWhere(const QString& what, const QString& where) {
  return what + QStringLiteral(" \u2014 ") + where;
}

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
}

void FindLine::Start(std::vector<Place> places) {
  places_ = std::move(places);
  QStringList texts;
  int widest = 0;
  for (const Place& place : places_) {
    texts << WhatAndWhere(place.caption, place.where);
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

void FindLine::Stop() {
  places_.clear();
  static_cast<QStringListModel*>(completer()->model())->setStringList({});
  completer()->popup()->hide();
  hide();
}

void FindLine::Choose(const QModelIndex& completion) {
  if (!completion.isValid()) return;
  const auto* shown = static_cast<const QAbstractProxyModel*>(completer()->completionModel());
  // A copy, because `Start` may replace the places while the tab is being read.
  const Place place = places_[static_cast<std::size_t>(shown->mapToSource(completion).row())];
  completer()->popup()->hide();
  hide();
  // The list of completions must be closed before the tab is read.
  QTimer::singleShot(0, this, [this, place] {
    if (!places_.empty()) Q_EMIT Found(place);
  });
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

}  // namespace AdvancedControl
