#pragma once

#include <QSlider>

/// A slider that reports when the user has finished moving it: at the mouse release after a drag or
/// a click in the groove, at the release of a stepping key, at each wheel notch, and when the focus
/// leaves while a key is still down. Moving it by program reports nothing. It uses the wheel only
/// while it has the focus. User-interface thread only.
///
/// It draws its own ticks: those of some styles are invisible with a dark palette, and move the
/// track out of the middle. It also draws its own track. If the range has negative and positive
/// positions, 0 has a mark, the track is filled from there, and a drag with the mouse catches at 0.
class CSliderCtrl : public QSlider {
  Q_OBJECT

 public:
  explicit CSliderCtrl(QWidget* parent = nullptr);

  /// Sets range and tick distance (at least 1); the position is kept inside the range.
  void SetRange(int minimum, int maximum, int tickFrequency);

  /// Moves the slider as a user does, and reports it, unless `position` is the present one.
  void ScrollTo(int position);

  /// Moves the slider to `position` as a drag does, which `Drop` ends and reports.
  void DragTo(int position);
  void Drop() { Finish(); }

  /// The handle's rectangle, in the slider's coordinates.
  QRect HandleRect() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  /// The user has moved the slider. True during a drag: releasing it would send the present value.
  void Scrolling(bool goesOn);
  void EndScroll();

 protected:
  void initStyleOption(QStyleOptionSlider* option) const override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool HasZero() const { return minimum() < 0 && maximum() > 0; }
  /// The horizontal middle of the handle at a position, in pixels.
  double PlaceOf(int position) const;
  void DrawTrack(QPainter& painter, const QRect& handle) const;
  void DrawTicks(QPainter& painter, const QRect& handle) const;
  void DrawZero(QPainter& painter, const QRect& handle) const;
  void EndKeyScroll();
  void Finish();

  bool pressed_ = false;
  bool keyScrolling_ = false;
};
