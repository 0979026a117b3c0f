#pragma once

#include <utility>

#include <QAction>
#include <QKeySequence>

/// An action that belongs to `owner` and calls `act` if it is still enabled: its shortcut may have
/// been pressed just before it was disabled.
inline QAction* MakeAction(QObject& owner, const QString& text, const QKeySequence& keys,
                           auto act) {
  auto* action = new QAction(text, &owner);
  action->setShortcut(keys);
  QObject::connect(action, &QAction::triggered, &owner, [action, act = std::move(act)] {
    if (action->isEnabled()) act();
  });
  return action;
}
