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

  /// Covers `area` of the page and dims `dimmed`, both in the page's coordinates.
  void Cover(const QRect& area, const QRegion& dimmed);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRegion dimmed_;
};

}  // namespace AdvancedControl
