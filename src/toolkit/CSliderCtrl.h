#pragma once

#include <QSlider>

/// A slider that reports when the user has finished moving it: at the mouse release after a drag or
/// a click in the groove, at the release of a stepping key, at each wheel notch, and when the focus
/// leaves while a key is still down. Moving it by program reports nothing. It uses the wheel only
/// while it has the focus. User-interface thread only.
///
/// It draws its own ticks: those of some styles are invisible with a dark palette, and move the
/// track out of the middle.
class CSliderCtrl : public QSlider {
  Q_OBJECT

 public:
  explicit CSliderCtrl(QWidget* parent = nullptr);

  /// Sets range and tick distance (at least 1); the position is kept inside the range.
  void SetRange(int minimum, int maximum, int tickFrequency);

  /// Moves the slider as a user does, and reports it, unless `position` is the present one.
  void ScrollTo(int position);

  /// The handle's rectangle, in the slider's coordinates.
  QRect HandleRect() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void Scrolling(bool goesOn);  ///< True while the user moves the slider; the value is then the one
                                ///< that the end will send.
  void EndScroll();

 protected:
  void initStyleOption(QStyleOptionSlider* option) const override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void EndKeyScroll();
  void Finish();

  bool pressed_ = false;
  bool keyScrolling_ = false;
};
