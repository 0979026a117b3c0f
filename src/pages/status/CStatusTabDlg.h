#pragma once

#include "pages/common/CTabPage.h"

/// The first tab of every page set: eight states of the projector, read-only, and the reset of the
/// lamp and filter times.
class CStatusTabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CStatusTabDlg(CWnd* parent);

 protected:
  bool OnInitDialog() override;
};
