#pragma once

#include <cstdint>

#include <QString>
#include <QWidget>

#include "Namespace.h"
#include "device/CPjtInterface.h"

class QPushButton;

namespace AdvancedControl {

class AnnouncedLabel;

/// The text of a problem of the connection.
QString ProblemText(ConnectionState connection);

/// The line beside Close. Shows the progress of reading; what came of an action; that a change is
/// not in effect yet or not possible now; or that the projector does not answer, with a button to
/// try again. Each change is announced to screen readers. User-interface thread only.
class StatusLine final : public QWidget {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent);

  /// Shows the progress of the present work. An empty text ends it.
  void ShowProgress(const QString& text);

  /// Takes a text about the present work for the next `ShowOutcome`.
  void Say(const QString& text) {
    said_ = text;
    isRepeated_ = false;
  }
  bool HasSomethingToSay() const { return !said_.isEmpty(); }
  /// Takes the text that it shows about earlier work, if any, so that it stays. It is not announced
  /// again.
  void Repeat() {
    said_ = shown_;
    isRepeated_ = true;
  }

  /// Shows the outcome of the commands since `before`: why one was not answered, that a change was
  /// accepted but is not in effect yet, that the projector was busy, or else what was said. Stays
  /// until the next call of `ShowProgress` or `ShowOutcome`.
  void ShowOutcome(const CPjtInterface& projector, const CPjtInterface::Tally& before);

  QWidget* RetryButton() const;

 Q_SIGNALS:
  void Retry();

 private:
  enum class Tone : std::uint8_t { Quiet, Alert };
  void Show(const QString& text, Tone tone, bool canRetry = false);

  AnnouncedLabel* text_;
  QPushButton* retry_;
  QString said_;
  QString shown_;  // what was said last; empty if the line shows something more important
  bool isRepeated_ = false;
};

}  // namespace AdvancedControl
