#pragma once

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "pages/common/CTabPage.h"

class CComboBox;

namespace AdvancedControl {

/// A picture page with lists of gammas and colour temperatures. A button beside each list opens the
/// pop-up for entries that the user can customise. The controls have the same numbers on every such
/// page. User-interface thread only.
class ADVANCED_CONTROL_EXPORT PicturePage : public CTabPage {
  Q_OBJECT

 public:
  void InitDisp() override;

  void OnCbnSelchangePicGammaComb();
  void OnCbnSelchangePicCctComb();
  void OnBnClickedPicGammaBtn();
  void OnBnClickedPicColorBtn();

 protected:
  /// `hideResets` hides the Reset buttons of the pop-ups.
  PicturePage(int templateNumber, const PageTable& table, bool hideResets, CWnd* parent);

  std::vector<Notification> OwnNotifications() const override;

  /// Whether the user can customise the chosen entry.
  virtual bool IsCustomGamma(const CComboBox& list) const = 0;
  virtual bool IsCustomColorTemp(const CComboBox& list) const = 0;

 private:
  void EnableCustomButtons();

  bool hideResets_;
};

}  // namespace AdvancedControl
