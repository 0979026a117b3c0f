#pragma once

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "device/CPjtInterface.h"
#include "device/ModelData.h"
#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/CDialog.h"

namespace AdvancedControl {

/// What every page and pop-up needs: the projector, the model data, texts and error boxes. Nothing
/// here is specific to one page. User-interface thread only.
class ADVANCED_CONTROL_EXPORT SettingsDialog : public CDialog {
  Q_OBJECT

 public:
  using CDialog::CDialog;

  /// The connection that the page uses. Not owned, never null. The opener sets it before creation;
  /// until then it refuses every command.
  CPjtInterface* projector = &Unconnected();

  /// The model data of the nearest owner that has some. Without one the data is empty, so that a
  /// page on its own shows its generic form.
  virtual const ModelData& Model() const;

  /// Shows a refusal in a message box with a stop icon and a text of the error category. Shows
  /// nothing if the user has left the running handlers.
  void ShowError(int errorNumber);

  // For the views of its rows.
  using CDialog::GreyCaption;
  using CDialog::RowRect;

 protected:
  /// Catalog text of the list category.
  static QString ListString(int number) { return CatalogString(kListCategory, number); }

  /// Asks a question with a text of the error category and the buttons Yes and No; true for Yes.
  bool Ask(int questionNumber);

  void OnOrphaned() override { projector = &Unconnected(); }

 private:
  static CPjtInterface& Unconnected();
};

}  // namespace AdvancedControl
