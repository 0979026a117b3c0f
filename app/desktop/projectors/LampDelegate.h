#pragma once

#include "toolkit/IsolatedText.h"

/// Draws the hours of a lamp in front of a bar, which is full when the rated hours are over.
class LampDelegate : public IsolatedTexts {
 public:
  using IsolatedTexts::IsolatedTexts;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};
