#pragma once

#include <QLabel>

#include "Namespace.h"

namespace AdvancedControl {

/// A label for what has just happened. Screen readers know it as a notification, and read its text
/// when it appears. User-interface thread only.
class AnnouncedLabel final : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  /// Shows a text that screen readers read even if the label shows the same text already.
  void Announce(const QString& text);
};

}  // namespace AdvancedControl
