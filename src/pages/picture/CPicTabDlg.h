#pragma once

#include "pages/picture/PicturePage.h"

/// Picture settings of the fourth page set.
class CPicTabDlg final : public PicturePage {
  Q_OBJECT

 public:
  explicit CPicTabDlg(CWnd* parent);

 protected:
  bool IsCustomGamma(const CComboBox& list) const override;
  bool IsCustomColorTemp(const CComboBox& list) const override;
};
