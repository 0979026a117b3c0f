#pragma once

#include <vector>

#include <QPolygonF>
#include <QString>
#include <QWidget>

#include "Namespace.h"

namespace AdvancedControl {

/// Draws lines in a frame as a picture of several values: accepted values as solid lines, values
/// being tried as dotted lines. Takes neither input nor the focus. User-interface thread only.
class CurveView : public QWidget {
  Q_OBJECT

 public:
  struct Line {
    QString label;       ///< Drawn at the line's end; may be empty.
    int hue = kNoHue;    ///< Hue, 0 to 359; the lightness depends on the palette.
    QPolygonF accepted;  ///< From left (0) to right (1), low (0) to high (1); up to 3/8 above and
                         ///< below are also shown.
    QPolygonF tried;

    static constexpr int kNoHue = -1;  ///< Uses the palette's selection colour.
  };

  using QWidget::QWidget;

  void Show(std::vector<Line> lines);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor ColorOf(const Line& line) const;

  std::vector<Line> lines_;
};

}  // namespace AdvancedControl
