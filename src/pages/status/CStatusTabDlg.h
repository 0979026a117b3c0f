#pragma once

#include "pages/common/CTabPage.h"

class CComboBox;

/// The first tab of every page set: eight states of the projector, read-only, and the reset of the
/// lamp and filter times.
class CStatusTabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CStatusTabDlg(CWnd* parent);

  void InitDisp() override;
  const NotificationMap& Notifications() const override;

 protected:
  void DoDataExchange() override;
  bool OnInitDialog() override;

 private:
  void OnBnClickedStsRstBtn();

  CComboBox* resetList_ = nullptr;
};
