#pragma once

#include <QInputDialog>

#include "Namespace.h"
#include "settings/Rows.h"

namespace AdvancedControl {

/// Asks for a number of a row. OK takes a whole number inside the range and nothing else: for any
/// other text the question stays open, says what it takes, and keeps what was typed.
class NumberQuestion final : public QInputDialog {
  Q_OBJECT

 public:
  /// `parent` is the window that takes no input meanwhile. The question deletes itself when it is
  /// closed.
  NumberQuestion(const QString& caption, Range range, int present, QWidget* parent);

  void done(int result) override;

 Q_SIGNALS:
  /// A number inside the range was entered.
  void Entered(int number);

 private:
  Range range_;
};

}  // namespace AdvancedControl
