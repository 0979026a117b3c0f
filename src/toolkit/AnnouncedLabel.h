#pragma once

#include <QLabel>

#include "Namespace.h"

namespace AdvancedControl {

/// A one-line label for what has just happened. Screen readers know it as a notification, and read
/// its text when it appears. Without room for all of it, it shows the start, and the whole text as
/// a tool tip. User-interface thread only.
class AnnouncedLabel final : public QLabel {
  Q_OBJECT

 public:
  explicit AnnouncedLabel(const QString& text = {}, QWidget* parent = nullptr)
      : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
  }

  /// Shows a text that screen readers read even if the label shows the same text already.
  void Announce(const QString& text);

  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace AdvancedControl
