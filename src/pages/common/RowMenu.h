#pragma once

#include <cstdint>

#include <QMenu>

#include "Namespace.h"

namespace AdvancedControl {

/// The context menu of a row: shows the numbers that the row accepts and its value when the dialog
/// was opened, and offers to restore that value, to type a number, and to copy. Deletes itself when
/// it is hidden. User-interface thread only.
class RowMenu final : public QMenu {
  Q_OBJECT

 public:
  enum class Choice : std::uint8_t { Absent, Grey, Usable };

  /// The texts to show; may be empty.
  struct Row {
    QString caption;
    QString value;
    QString note;    ///< The numbers that the row accepts, or why it is disabled.
    QString opened;  ///< Its value when the dialog was opened.
    Choice putBack = Choice::Absent;
    Choice enterValue = Choice::Absent;
  };

  /// `parent` owns the menu.
  RowMenu(const Row& row, QWidget* parent);

 Q_SIGNALS:
  void PutBack();
  void EnterValue();

 private:
  void AddText(const QString& text);
};

}  // namespace AdvancedControl
