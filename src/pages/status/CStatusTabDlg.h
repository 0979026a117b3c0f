#pragma once

#include <optional>

#include <QAction>
#include <QTimer>

#include "pages/common/CTabPage.h"

/// The first tab of every page set: eight states of the projector, read-only, and the reset of the
/// lamp and filter times. Power, error and lamp time have a mark that shows at a glance whether all
/// is well. The user can have it read again every few seconds.
class CStatusTabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CStatusTabDlg(CWnd* parent);

  QAction* PageAction() override { return &keepsUpToDate_; }

  /// See `CAdvanceDlg`.
  void SetRatedLampHours(int hours) { ratedLampHours_ = hours; }

 protected:
  bool OnInitDialog() override;

 private:
  void ShowState(int control, std::optional<int> value) override;
  void ShowLampTime(std::optional<int> hours);
  void ReadIfQuiet();

  QAction keepsUpToDate_;
  QTimer next_{this};
  int ratedLampHours_ = 0;
  std::optional<int> error_;
};
