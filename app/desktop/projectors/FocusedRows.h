#pragma once

#include "toolkit/IsolatedText.h"

/// Draws the selected rows of a list in a muted color while the list lacks the keyboard, so that of
/// several lists the one that has it can be seen.
class FocusedRows : public IsolatedTexts {
 public:
  using IsolatedTexts::IsolatedTexts;

 protected:
  /// Whether it is drawn in the strong color.
  static bool IsStrong(const QStyleOptionViewItem& option);

  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
