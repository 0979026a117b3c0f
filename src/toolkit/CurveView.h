#pragma once

#include <vector>

#include <QPolygonF>
#include <QString>
#include <QWidget>

#include "Namespace.h"

namespace AdvancedControl {

/// Lines in a frame, for those who would rather look than read: what is accepted solid, what is
/// being tried dotted. Takes neither input nor the focus.
class CurveView : public QWidget {
  Q_OBJECT

 public:
  struct Line {
    QString label;     ///< Stands at the line's end; may be empty.
    int hue = kNoHue;  ///< Of the colour wheel, 0 to 359; the palette gives the lightness.
    QPolygonF
        accepted;  ///< From left (0) to right (1), low (0) to high (1); three eighths more fit.
    QPolygonF tried;

    static constexpr int kNoHue = -1;  ///< The palette's colour for a selection.
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
