#pragma once

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "pages/common/RowDialog.h"

/// The page of a tab. User-interface thread only.
class ADVANCED_CONTROL_EXPORT CTabPage : public AdvancedControl::RowDialog {
  Q_OBJECT

 public:
  using AdvancedControl::RowDialog::RowDialog;

  /// Reads the projector and shows its values; called each time the page is brought to the front.
  virtual void InitDisp() { Refresh(); }

  /// Like `InitDisp`, but rows that are not read yet are dimmed.
  void ReadPage() {
    const AdvancedControl::PageReader::Reading reading(Reader());
    InitDisp();
  }

 protected:
  void ReadAgain() override { ReadPage(); }
};

namespace AdvancedControl {

/// A page that is nothing but its table.
template <int templateNumber, const PageTable& table>
class TablePage final : public CTabPage {
 public:
  explicit TablePage(CWnd* parent) : CTabPage(templateNumber, table, parent) {}
};

}  // namespace AdvancedControl
