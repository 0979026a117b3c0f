#pragma once

#include <QTabBar>

/// A row of tabs without pages. A click or a key changes the selection, and `currentChanged`
/// reports it. User-interface thread only.
class CTabCtrl : public QTabBar {
  Q_OBJECT

 public:
  explicit CTabCtrl(QWidget* parent = nullptr);

  /// Sets the width of every tab that is added, in device-independent pixels. A tab is wider if its
  /// caption needs it, and narrower if there is too little space. If even the captions have too
  /// little space, the longest are shortened, and a tool tip shows them whole.
  void SetItemWidth(int width) { itemWidth_ = width; }

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  bool event(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  int WidestTab() const;

  int itemWidth_ = 0;
};
