#pragma once

#include "pages/picture/CustomDialog.h"
#include "resources/TemplateId.h"
#include "settings/PageTables.h"

/// The pop-up that adjusts the white balance of the user colour temperature: gain and offset of
/// red, green and blue, and a test pattern.
class CColorDlg final : public CustomDialog {
  Q_OBJECT

 public:
  /// `hideResets` leaves out the rows' Reset buttons. Without a parent the dialog belongs to the
  /// dialog that runs it.
  explicit CColorDlg(bool hideResets, CWnd* parent = nullptr)
      : CustomDialog(TemplateId::ColorTemp, kColorTempRows, hideResets, parent) {}

 protected:
  std::vector<CurveView::Line> LinesOf(const Values& values) const override;
};
