#pragma once

#include <QWidget>

#include "Namespace.h"
#include "device/CPjtInterface.h"

class QLabel;
class QPushButton;

namespace AdvancedControl {

/// The line beside Close. Shows the progress of reading; that a change is not in effect yet or not
/// possible now; or that the projector does not answer, with a button to try again. Each change is
/// announced to screen readers. User-interface thread only.
class StatusLine final : public QWidget {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent);

  /// Shows the progress of the present work. An empty text ends it.
  void ShowProgress(const QString& text);

  /// Shows the outcome of the commands since `before`: why one was not answered, that a change was
  /// accepted but is not in effect yet, that the projector was busy, or nothing. Stays until the
  /// next call of `ShowProgress` or `ShowOutcome`.
  void ShowOutcome(const CPjtInterface& projector, const CPjtInterface::Tally& before);

  QWidget* RetryButton() const;

 Q_SIGNALS:
  void Retry();

 private:
  void Show(const QString& text, bool canRetry);

  QLabel* text_;
  QPushButton* retry_;
};

}  // namespace AdvancedControl
