#pragma once

#include <optional>
#include <vector>

#include <QPolygonF>
#include <QString>
#include <QWidget>

#include "Namespace.h"

namespace AdvancedControl {

/// Draws lines over two axes in percent, as a picture of several values: accepted values as solid
/// lines, values being tried as dotted lines. The user may drag the points of a movable line up and
/// down. Does not take the focus. User-interface thread only.
class CurveView : public QWidget {
  Q_OBJECT

 public:
  struct Line {
    QString label{};       ///< Drawn at the line's end; may be empty.
    int hue = kNoHue;      ///< Hue, 0 to 359; the lightness depends on the palette.
    QPolygonF accepted{};  ///< From left (0) to right (1), low (0) to high (1); up to 3/8 above and
                           ///< below are also shown.
    QPolygonF tried{};
    std::vector<int> values{};  ///< The value that each point stands for, in the points' order.
    bool movable = false;

    static constexpr int kNoHue = -1;  ///< Uses the palette's selection colour.
  };

  explicit CurveView(QWidget* parent);

  /// Shows the lines, and marks the points of the value `marked`.
  void Show(std::vector<Line> lines, std::optional<int> marked = {});

  std::optional<int> Marked() const { return marked_; }

  /// The place of a point, in the picture's coordinates.
  QPointF PlaceOf(const QPointF& point) const;

  QSize sizeHint() const override;

 Q_SIGNALS:
  /// The user drags the point of a value to a height, see `Line`.
  void Dragged(int value, double height);
  /// The user has let go of a point that was dragged.
  void Dropped(int value);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor ColorOf(const Line& line) const;
  QRectF Plot() const;
  QPolygonF Placed(QPolygonF points) const;
  std::optional<int> MovableAt(const QPointF& at) const;
  void DrawAxes(QPainter& painter) const;
  void DrawLines(QPainter& painter) const;

  std::vector<Line> lines_;
  std::optional<int> marked_;
  std::optional<int> pressed_;  // the value of the point under the pressed mouse button
  bool dragged_ = false;
};

}  // namespace AdvancedControl
