#pragma once

#include <functional>
#include <memory>
#include <utility>

#include <QObject>
#include <QPointer>

#include "Namespace.h"
#include "device/CPjtInterface.h"
#include "toolkit/HandlerWatch.h"

namespace AdvancedControl {

class StatusLine;

/// Shows the user that a dialog waits for its projector, from the beginning of the first handler
/// until the last one returns. Reports when a wait becomes noticeable, shows progress and results
/// in the line beside Close, and abandons the work under way. A dialog with tabs has one for all
/// its pages; a pop-up has its own. User-interface thread only.
class Waiting final : public QObject, public HandlerWatch {
 public:
  /// Functions of the dialog, called during the lifetime of `Waiting`.
  struct Dialog {
    std::function<CPjtInterface&()> projector;
    /// Called repeatedly with true during a long wait, and once with false at its end. Not called
    /// for short waits.
    std::function<void(bool waiting)> show;
    /// The progress of the present work as a text.
    std::function<QString()> text;
    /// Called when the user wants to repeat what was not answered.
    std::function<void()> retry;
    /// Called when no handler runs and the dialog has to be read again; `left` as for `OnIdle`.
    std::function<void(bool left)> readAgain;
    /// Called each time no handler runs any more.
    std::function<void(bool left)> idle = [](bool) {};
  };

  explicit Waiting(Dialog dialog);
  ~Waiting() override;

  /// Makes a new line, owned by `parent`.
  StatusLine& MakeLine(QWidget* parent);

  void OnBusy() override;
  /// Shows the outcome of the commands, unless the user left the handlers.
  void OnIdle(bool left) override;
  /// Abandons the running handlers: no command is sent until `OnReturn`.
  void OnLeave() override;
  void OnReturn() override;
  /// The dialog has to be read again when no handler runs.
  void OnStale() override { stale_ = true; }

  /// Whether the dialog has to be read again, which is then forgotten.
  bool TakeStale() { return std::exchange(stale_, false); }
  /// Makes `OnIdle` ignore all commands sent so far.
  void RestartTally();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void Show(bool waiting);

  Dialog dialog_;
  QPointer<StatusLine> line_;
  CPjtInterface::Tally before_;  // the tally at the beginning of the commands that `OnIdle` shows
  std::shared_ptr<const void> abandoned_;  // commands are abandoned while it exists
  int timer_ = 0;
  int ticks_ = 0;
  bool shown_ = false;
  bool stale_ = false;
};

}  // namespace AdvancedControl
