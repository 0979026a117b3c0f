#pragma once

#include <QTabBar>

/// A row of tabs without pages of its own. `tabBarClicked`/keys change the selection;
/// `currentChanged` reports it.
class CTabCtrl : public QTabBar {
  Q_OBJECT

 public:
  explicit CTabCtrl(QWidget* parent = nullptr);

  /// Width of every tab in device-independent pixels, where there is room; a tab whose caption
  /// needs more is wider.
  void SetItemWidth(int width);

 protected:
  QSize tabSizeHint(int index) const override;
  /// Where there is less room, a tab is as wide as its caption needs.
  QSize minimumTabSizeHint(int index) const override { return QTabBar::tabSizeHint(index); }
  void wheelEvent(QWheelEvent* event) override;

 private:
  int itemWidth_ = 0;
};
