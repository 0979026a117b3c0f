#pragma once

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "device/CPjtInterface.h"
#include "device/ModelData.h"
#include "i18n/LocalizeControlTexts.h"
#include "pages/common/DialogContext.h"
#include "settings/CatalogNumbers.h"
#include "settings/ErrorNumbers.h"
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

  /// The context given by the nearest owner that has one, else an empty one.
  const DialogContext& Context() const;

  /// Shows a text in the line beside Close once no handler runs, unless the outcome of the commands
  /// is more important.
  void Say(const QString& text) const;

  /// Shows a refusal in a message box with a stop icon and a text of the error category. Shows
  /// nothing if the user has left the running handlers.
  void ShowError(int errorNumber);

  /// Enables a control. If it is not usable, its tool tip and its description for screen readers
  /// give the reason: a text of the list category.
  void Enable(int control, bool usable, int reason);

  // For the views of its rows.
  using CDialog::GreyCaption;
  using CDialog::RowRect;

 protected:
  /// Catalog text of the list category.
  static QString ListString(int number) { return CatalogString(kListCategory, number); }

  /// Asks a question with the buttons Yes and No; true for Yes.
  bool Ask(const QString& question);
  /// The same with a text of the error category.
  bool Ask(int questionNumber) { return Ask(CatalogString(kErrorCategory, questionNumber)); }

  void OnOrphaned() override { projector = &Unconnected(); }

 private:
  static CPjtInterface& Unconnected();
};

/// The title of a window that belongs to the dialog, after the projector's name if that is known.
QString NamedTitle(const SettingsDialog& dialog, const QString& title);

}  // namespace AdvancedControl
