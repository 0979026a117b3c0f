#pragma once

#include <cstdint>

#include <QMenu>

#include "Namespace.h"

namespace AdvancedControl {

/// The context menu of a row: shows what there is to say about the row and its value when the
/// dialog was opened, and offers to restore that value, to set the wanted one, to type a number,
/// and to copy. Deletes itself when it is hidden. User-interface thread only.
class RowMenu final : public QMenu {
  Q_OBJECT

 public:
  enum class Choice : std::uint8_t { Absent, Grey, Usable };

  /// The texts to show; may be empty.
  struct Row {
    QString caption;
    QString value;
    QString notes;   ///< What there is to say about it, a text in each line.
    QString opened;  ///< Its value when the dialog was opened.
    QString wanted;  ///< The value that it should have.
    Choice putBack = Choice::Absent;
    Choice setToWanted = Choice::Absent;
    Choice enterValue = Choice::Absent;
  };

  /// `parent` owns the menu.
  RowMenu(const Row& row, QWidget* parent);

 Q_SIGNALS:
  void PutBack();
  void SetToWanted();
  void EnterValue();

 private:
  void AddText(const QString& text);
};

}  // namespace AdvancedControl
