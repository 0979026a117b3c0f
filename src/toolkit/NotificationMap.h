#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

#include "Namespace.h"

class CDialog;
class CSliderCtrl;

namespace AdvancedControl {

/// A report of a control, and its handler.
struct Notification {
  enum class Event : std::uint8_t {
    Clicked,    ///< The user pressed a button or changed a check box.
    SelChange,  ///< The user chose an entry of a list, or another tab was selected by anyone.
    HScroll,    ///< The user finished moving any slider of the dialog.
    Passive,    ///< Reports nothing; the handler of another control reads it.
  };

  Event event;
  int id;  ///< Control number; 0 for HScroll, which serves every slider.
  std::function<void(CDialog&, CSliderCtrl*)> handle;
};

/// A dialog's notifications, one line each. Every control that a user can operate has exactly one
/// line; sliders share the dialog's HScroll line. User-interface thread only.
class NotificationMap {
 public:
  NotificationMap(std::initializer_list<Notification> entries) : entries_(entries) {}
  explicit NotificationMap(std::vector<Notification> entries) : entries_(std::move(entries)) {}

  const std::vector<Notification>& Entries() const { return entries_; }

  /// Whether the control `id` has a line.
  bool Names(int id) const { return std::ranges::count(entries_, id, &Notification::id) != 0; }

 private:
  std::vector<Notification> entries_;
};

template <class Dialog>
Notification Clicked(int id, void (Dialog::*handler)()) {
  return {Notification::Event::Clicked, id,
          [handler](CDialog& dialog, CSliderCtrl*) { (static_cast<Dialog&>(dialog).*handler)(); }};
}

template <class Dialog>
Notification SelChange(int id, void (Dialog::*handler)()) {
  return {Notification::Event::SelChange, id,
          [handler](CDialog& dialog, CSliderCtrl*) { (static_cast<Dialog&>(dialog).*handler)(); }};
}

template <class Dialog>
Notification HScroll(void (Dialog::*handler)(CSliderCtrl&)) {
  return {Notification::Event::HScroll, 0, [handler](CDialog& dialog, CSliderCtrl* slider) {
            (static_cast<Dialog&>(dialog).*handler)(*slider);
          }};
}

inline Notification Passive(int id) {
  return {Notification::Event::Passive, id, [](CDialog&, CSliderCtrl*) {}};
}

}  // namespace AdvancedControl
