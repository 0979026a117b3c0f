#pragma once

#include <functional>
#include <memory>

#include <QObject>
#include <QPointer>

#include "Namespace.h"
#include "device/CPjtInterface.h"

namespace AdvancedControl {

class StatusLine;

/// Shows the user that a dialog waits for its projector, from the beginning of the first handler
/// until the last one returns. Reports when a wait becomes noticeable, shows progress and results
/// in the line beside Close, and abandons the work under way. A dialog with tabs has one for all
/// its pages; a pop-up has its own. User-interface thread only.
class Waiting final : public QObject {
 public:
  /// What the dialog says about itself and does. Called between construction and destruction.
  struct Dialog {
    std::function<CPjtInterface&()> projector;
    /// Called with true again and again while a wait is long, and with false once when it is over;
    /// after short waits not at all.
    std::function<void(bool waiting)> show;
    /// How far what goes on has come, in words.
    std::function<QString()> text;
    /// The user wants to try again what was not answered.
    std::function<void()> retry;
  };

  explicit Waiting(Dialog dialog);
  ~Waiting() override;

  /// Makes the line afresh, as a child of `parent`, which owns it.
  StatusLine& MakeLine(QWidget* parent);

  /// The first handler begins, and the last one has returned. What it did is shown unless the user
  /// `left` it.
  void Begin();
  void End(bool left);
  /// What was sent up to now does not count for what `End` shows.
  void CountAfresh();

  /// Abandons what is under way, until `Return`: no command is sent meanwhile.
  void Abandon();
  void Return();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void Show(bool waiting);

  Dialog dialog_;
  QPointer<StatusLine> line_;
  CPjtInterface::Tally before_;            // what counts
  std::shared_ptr<const void> abandoned_;  // as long as it lives
  int timer_ = 0;
  int ticks_ = 0;
  bool shown_ = false;
};

}  // namespace AdvancedControl
