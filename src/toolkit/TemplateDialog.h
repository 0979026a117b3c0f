#pragma once

#include <span>
#include <unordered_map>
#include <vector>

#include <QDialog>
#include <QPointer>

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "toolkit/CWnd.h"
#include "toolkit/DialogTemplate.h"

class QGridLayout;

namespace AdvancedControl {

/// A dialog laid out by a numbered template: makes the controls, finds them by number, and gives
/// all present rows the same pitch. User-interface thread only.
class ADVANCED_CONTROL_EXPORT TemplateDialog : public QDialog {
  Q_OBJECT

 public:
  /// Number of the sentence that `ShowNotice` shows.
  static constexpr int kNoticeId = -1;

  int TemplateNumber() const { return templateNumber_; }
  /// The template the controls were built from; null before that.
  const DialogTemplate* Template() const { return template_; }

  /// The control with this number, owned by the dialog, or null.
  QWidget* GetDlgItem(int id) const;

  /// The control with this number, which must exist and be a `Control`.
  template <class Control>
  Control& Item(int id) const {
    auto* control = qobject_cast<Control*>(GetDlgItem(id));
    if (control == nullptr) NoSuchControl(id);
    return *control;
  }

  /// Whether `target`, the dialog or a widget in it, accepts input while a handler runs: tabs,
  /// Close and the space between the controls, but nothing on a page except controls whose input is
  /// kept.
  bool AcceptsInputWhileBusy(const QWidget& target) const;
  /// Whether the input to a control of this dialog is kept while its own handler runs.
  virtual bool KeepsInput(const QWidget& /*control*/) const { return false; }

  /// Shows or removes the row that holds this control; the rows below close the gap.
  void ShowRow(int id, bool present);

  /// Gives the captions of all these dialogs the same width, the left columns and the right columns
  /// each, so that controls keep their place when the dialogs change. Absent rows do not count.
  static void ShareCaptionWidths(std::span<TemplateDialog* const> dialogs);

  /// Scrolls a control's row into view and highlights it for a few seconds.
  void Highlight(int id);

  /// The size of the template or the size that the present contents need, whichever is larger.
  QSize DialogSize() const;

 protected:
  TemplateDialog(int templateNumber, CWnd* parent);

  /// Deletes all controls and builds those of the template. False if no module of the resource
  /// chain has the template; the dialog then stays empty.
  bool BuildControls();
  /// Completes the layout once texts and present rows are final, and fits a window to its screen.
  void FinishLayout();
  /// Updates the layout after texts or the presence of rows have changed.
  void UpdateRows();

  const std::unordered_map<int, QWidget*>& Controls() const { return controls_; }
  /// Whether the rows scroll because they do not fit on the screen.
  bool IsScrolled() const { return scroll_ != nullptr; }

  /// The rectangle of a control's row, from its first control to its last.
  QRect RowRect(int id);

  /// Greys the captions of a control's row if none of its controls can be operated.
  void GreyCaption(int id);

  /// Shows a sentence at the top of a dialog; the rows there must be absent.
  void ShowNotice(const QString& text);

  void changeEvent(QEvent* event) override;

  /// Places a widget in the row of Close, at the opposite side.
  void PlaceBesideClose(QWidget& widget);

  /// Dialog units to device-independent pixels, in the dialog's font.
  QSize FromDialogUnits(int width, int height) const;

 private:
  struct PlacedRow {
    QGridLayout* grid;
    int gridRow;
    bool present = true;
    std::vector<QWidget*> controls;
  };

  [[noreturn]] void NoSuchControl(int id) const;
  PlacedRow* RowOf(int id);
  void CreateLayout();
  void MakeDisabledTextsReadable();
  void ShareListWidths();
  void FitToScreen();

  int templateNumber_;
  const DialogTemplate* template_ = nullptr;
  QPointer<QWidget> scroll_;  // scrolls the rows of a window that is too large for the screen
  int pitch_ = 0;             // height of the present rows, in pixels
  std::unordered_map<int, QWidget*> controls_;
  std::vector<PlacedRow> rows_;  // in the template's order
};

}  // namespace AdvancedControl
