#pragma once

#include <QInputDialog>

#include "Namespace.h"
#include "settings/Rows.h"

namespace AdvancedControl {

/// Asks for a row's number. OK accepts only a whole number inside the range. For any other text the
/// question stays open with the text and shows the range. User-interface thread only.
class NumberQuestion final : public QInputDialog {
  Q_OBJECT

 public:
  /// The question is modal to the window `parent`, and deletes itself when it is closed.
  NumberQuestion(const QString& caption, Range range, int present, QWidget* parent);

  /// Shows a unit in the field, behind the number.
  void SetUnit(const QString& unit);

  void done(int result) override;

 Q_SIGNALS:
  /// A number inside the range was entered.
  void Entered(int number);

 private:
  Range range_;
};

}  // namespace AdvancedControl
