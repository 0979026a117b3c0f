#pragma once

#include "pages/common/RowDialog.h"

/// What the two custom pop-ups share: a test pattern and a column of slider rows, each with a
/// button that resets it. Every change goes to the projector at once.
class CustomDialog : public RowDialog {
  Q_OBJECT

 protected:
  CustomDialog(int templateNumber, const PageTable& table, bool hideResets, CWnd* parent)
      : RowDialog(templateNumber, table, parent), table_(table), hideResets_(hideResets) {}

  bool OnInitDialog() override;

 private:
  const PageTable& table_;
  bool hideResets_;
};
