#pragma once

#include "AdvancedControlExport.h"
#include "device/CPjtInterface.h"
#include "device/ModelData.h"
#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/CDialog.h"

/// What every page and pop-up needs: the projector, the model data, texts and error boxes.
/// Nothing in here belongs to one page.
class ADVANCED_CONTROL_EXPORT SettingsDialog : public CDialog {
  Q_OBJECT

 public:
  using CDialog::CDialog;

  /// The connection that the page works on. Not owned, never null; set by the opener before
  /// creation, until then a connection that refuses everything.
  CPjtInterface* projector = &Unconnected();

  /// The model data of the dialog this one belongs to, at any distance; empty data when there is
  /// none, so that a page on its own shows its generic form.
  virtual const ModelData& Model() const;

  /// Tells a refusal: stop-icon box with the error category's text. Nothing is told to a user who
  /// has left meanwhile.
  void ShowError(int errorNumber);

  // What its rows need to know of their place.
  using CDialog::GreyCaption;
  using CDialog::RowRect;

 protected:
  /// Catalog text of the list category.
  static QString ListString(int number) { return CatalogString(kListCategory, number); }

  /// Asks with the error category's text and the buttons Yes and No; true for Yes.
  bool Ask(int questionNumber);

  void OnOrphaned() override { projector = &Unconnected(); }

 private:
  static CPjtInterface& Unconnected();
};
