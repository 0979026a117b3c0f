#pragma once

#include <unordered_map>

#include <QObject>
#include <QPoint>
#include <QRect>

#include "Namespace.h"
#include "pages/common/PageReader.h"

class QToolButton;

namespace AdvancedControl {

class ResetRowView;

/// The small buttons after the numbers of a page: each resets its row, as the entry of the page's
/// list of resets does. A button is shown while the mouse is over its row or the row has the focus,
/// and made when it is first shown. User-interface thread only.
class RowResets final : public QObject {
 public:
  /// `host` and `rows` must outlive the buttons.
  RowResets(RowHost& host, const PageReader::Rows& rows);

  /// Forgets the buttons of controls that are gone.
  void Clear();

 protected:
  bool eventFilter(QObject* dialog, QEvent* event) override;

 private:
  ResetRowView* Resets() const;
  RowView* RowAt(QPoint at) const;
  RowView* FocusedRow() const;
  QRect PlaceOf(const RowView& row) const;
  /// Makes the button if there is none yet; null for a row without a reset.
  QToolButton* ButtonOf(RowView& row);
  /// Shows the buttons of the row under the mouse and of the row with the focus, and no others.
  void Update();

  RowHost& host_;
  const PageReader::Rows& rows_;
  std::unordered_map<RowView*, QToolButton*> buttons_;  // owned by the dialog
  RowView* hovered_ = nullptr;
};

}  // namespace AdvancedControl
