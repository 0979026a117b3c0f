#pragma once

#include <QWidget>

#include "device/ConnectionState.h"

class QLabel;
class QPushButton;

/// The quiet line beside Close: how far reading has come, or that the projector does not answer,
/// with a button to try again. A screen reader is told of each change.
class StatusLine final : public QWidget {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent);

  /// Something goes on; an empty text ends that.
  void ShowProgress(const QString& text);
  /// Says why the projector did not answer. Stays until the next `ShowProgress`.
  void ShowNoAnswer(ConnectionState connection);

  QWidget* RetryButton() const;

 Q_SIGNALS:
  void Retry();

 private:
  void Show(const QString& text, bool canRetry);

  QLabel* text_;
  QPushButton* retry_;
};
