#pragma once

#include <QTabBar>

/// A row of tabs without pages. A click or a key changes the selection, and `currentChanged`
/// reports it. User-interface thread only.
class CTabCtrl : public QTabBar {
  Q_OBJECT

 public:
  explicit CTabCtrl(QWidget* parent = nullptr);

  /// Sets the width of every tab, in device-independent pixels. A tab is wider if its caption needs
  /// it, and narrower if there is too little space.
  void SetItemWidth(int width);

 protected:
  QSize tabSizeHint(int index) const override;
  /// With too little space, a tab is as wide as its caption needs.
  QSize minimumTabSizeHint(int index) const override { return QTabBar::tabSizeHint(index); }
  void wheelEvent(QWheelEvent* event) override;

 private:
  int itemWidth_ = 0;
};
