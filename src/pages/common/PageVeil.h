#pragma once

#include <QRegion>
#include <QWidget>

#include "Namespace.h"

namespace AdvancedControl {

/// An overlay on a page that waits for its projector: dims parts of the page and shows the wait
/// cursor. User-interface thread only.
class PageVeil final : public QWidget {
 public:
  explicit PageVeil(QWidget& page);

  /// Covers `area` of the page except `open`, and dims `dimmed`, all in the page's coordinates.
  void Cover(const QRect& area, const QRegion& dimmed, const QRegion& open);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRegion dimmed_;
};

}  // namespace AdvancedControl
