#pragma once

#include <cstdint>

#include <QMenu>

#include "Namespace.h"

namespace AdvancedControl {

/// What a person can do with a row beside operating its controls: see what it takes and what it
/// was, put that back, type a number, and copy. The menu ends when it is hidden.
class RowMenu final : public QMenu {
  Q_OBJECT

 public:
  enum class Choice : std::uint8_t { Absent, Grey, Usable };

  /// Texts are as they are shown, and may be empty.
  struct Row {
    QString caption;
    QString value;
    QString note;    ///< The numbers it takes, or why it is grey.
    QString opened;  ///< What it was when the dialog was opened.
    Choice putBack = Choice::Absent;
    Choice enterValue = Choice::Absent;
  };

  /// `parent` owns the menu.
  RowMenu(const Row& row, QWidget* parent);

 Q_SIGNALS:
  void PutBack();
  void EnterValue();

 private:
  void Tell(const QString& text);
};

}  // namespace AdvancedControl
