#pragma once

#include <QObject>
#include <QPoint>

#include "Namespace.h"
#include "pages/common/PageReader.h"

namespace AdvancedControl {

/// The context menus of a page's rows. Filters the events of the page's dialog, opens a menu on the
/// user's request, and carries out the chosen command. User-interface thread only.
class RowMenus final : public QObject {
 public:
  /// `host` and `rows` must outlive the menus.
  RowMenus(RowHost& host, const PageReader::Rows& rows);

 protected:
  bool eventFilter(QObject* dialog, QEvent* event) override;

 private:
  /// The row at a point of the dialog, where the widget `under` is; null if there is none or it is
  /// ambiguous.
  RowView* RowAt(const QWidget& under, QPoint at) const;
  bool Open(const QWidget& under, QPoint at, QPoint onScreen);
  /// Opens the menu of the page itself, if it has one.
  bool OpenForPage(QPoint onScreen);
  bool IsBusy() const;
  void AskForNumber(RowView& row);
  void MoveTo(RowView& row, int position);
  void PutBack(RowView& row);
  void SetToWanted(RowView& row);
  bool HasItsSource(RowView& row);

  RowHost& host_;
  const PageReader::Rows& rows_;
};

}  // namespace AdvancedControl
