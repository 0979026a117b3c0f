#pragma once

#include <QWidget>

#include "Namespace.h"
#include "device/CPjtInterface.h"

class QLabel;
class QPushButton;

namespace AdvancedControl {

/// The quiet line beside Close: how far reading has come, that a change is not yet so or not
/// possible now, or that the projector does not answer, with a button to try again. A screen reader
/// is told of each change.
class StatusLine final : public QWidget {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent);

  /// Something goes on; an empty text ends that.
  void ShowProgress(const QString& text);

  /// Says what became of the commands since `before`: why one was not answered, that a change was
  /// accepted and is not yet so, that the projector was busy, or nothing. Stays until the next
  /// call of these.
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
