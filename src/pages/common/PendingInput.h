#pragma once

#include <functional>
#include <vector>

#include <QObject>

#include "Namespace.h"
#include "toolkit/NotificationMap.h"

class CSliderCtrl;
class QAbstractButton;

namespace AdvancedControl {

class RowHost;
class ValueRowView;

/// Keeps what the user does to a row with a number while the row waits for the projector: presses
/// of − and +, and the slider's last position. They are carried out one after the other, as if the
/// row had been free. A refusal, leaving, or input to anything else drops them. Repeats of a held
/// button or key are not kept. User-interface thread only.
class PendingInput final : public QObject {
 public:
  /// `host` must outlive this object.
  explicit PendingInput(RowHost& host) : host_(host) {}

  /// Calls the handler of a notification, and then the handlers of what was kept meanwhile.
  void Run(const Notification& entry, CSliderCtrl* slider);

  /// Whether input to this control is kept now.
  bool Keeps(const QWidget& control) const;
  /// Keeps a notification of such a control.
  void Keep(const Notification& entry, CSliderCtrl* slider);

 protected:
  bool eventFilter(QObject* control, QEvent* event) override;

 private:
  struct Act {
    const Notification* entry;
    CSliderCtrl* slider;  ///< Null for a step.
    int position = 0;     ///< Of the slider.
    bool kept = false;    ///< The user did it while the row waited.
  };

  void Handle(const Act& act);
  void Drop();
  /// Shows the number that the row will have if the projector accepts everything.
  void Show();
  void Watch(bool on);

  RowHost& host_;
  ValueRowView* row_ = nullptr;       // that waits
  std::vector<Act> acts_;             // the one that waits, and those after it
  const QObject* pressed_ = nullptr;  // the button that was pressed during the wait
  QMetaObject::Connection inputDropped_;
};

}  // namespace AdvancedControl
