#pragma once

#include <QColor>

#include "app/desktop/projectors/FocusedRows.h"

/// Draws the hours of a lamp in front of a bar, which is full when the rated hours are over.
class LampDelegate : public FocusedRows {
 public:
  using FocusedRows::FocusedRows;

  /// The color of the bar when the lamp has burned `share` of its rated hours, 1 being all of them.
  static QColor Color(double share);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};
