#pragma once

#include <optional>

#include "pages/common/CTabPage.h"

/// The first tab of every page set: eight states of the projector, read-only, and the reset of the
/// lamp and filter times. Power, error and lamp time have a mark that shows at a glance whether all
/// is well.
class CStatusTabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CStatusTabDlg(CWnd* parent);

  /// See `CAdvanceDlg`.
  void SetRatedLampHours(int hours) { ratedLampHours_ = hours; }

 protected:
  bool OnInitDialog() override;

 private:
  void ShowState(int control, std::optional<int> value) override;
  void ShowLampTime(std::optional<int> hours);

  int ratedLampHours_ = 0;
  std::optional<int> error_;
};
