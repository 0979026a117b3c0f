#pragma once

#include <memory>
#include <unordered_map>

#include <QDialog>

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "toolkit/CWnd.h"
#include "toolkit/DialogTemplate.h"

namespace AdvancedControl {

class TemplateRows;

/// A dialog laid out by a numbered template: makes the controls, finds them by number, and
/// shows or removes their rows. User-interface thread only.
class ADVANCED_CONTROL_EXPORT TemplateDialog : public QDialog {
  Q_OBJECT

 public:
  /// Number of the sentence that `ShowNotice` shows.
  static constexpr int kNoticeId = -1;

  ~TemplateDialog() override;

  int TemplateNumber() const { return templateNumber_; }
  /// The template the controls were built from; null before that.
  const DialogTemplate* Template() const { return template_; }

  /// The control with this number, owned by the dialog, or null.
  QWidget* GetDlgItem(int id) const;

  /// The control with this number, which must exist and be a `Control`.
  template <class Control>
  Control& Item(int id) const {
    auto* control = qobject_cast<Control*>(GetDlgItem(id));
    if (control == nullptr) NoSuchControl(id);  // unreachable: ends the process
    return *control;
  }

  /// Whether `target`, the dialog or a widget in it, accepts input while a handler runs. Tabs,
  /// Close and the space between controls do; on a page only controls whose input is kept.
  bool AcceptsInputWhileBusy(const QWidget& target) const;
  /// Whether the input to a control of this dialog is kept while its own handler runs.
  virtual bool KeepsInput(const QWidget& /*control*/) const { return false; }

  /// Shows or removes the row that holds this control; the rows below close the gap.
  void ShowRow(int id, bool present);

  const TemplateRows& Rows() const { return *rows_; }

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
  bool IsScrolled() const;

  /// The rectangle of a control's row, from its first control to its last.
  QRect RowRect(int id) const;

  /// Greys the captions of a control's row if none of its controls can be operated.
  void GreyCaption(int id);

  /// Shows a sentence at the top of a dialog; the rows there must be absent.
  void ShowNotice(const QString& text);

  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

  /// Places a widget in the row of Close, where it gets the space that Close leaves.
  void PlaceBesideClose(QWidget& widget);

 private:
  [[noreturn]] void NoSuchControl(int id) const;
  void MakeDisabledTextsReadable();

  int templateNumber_;
  const DialogTemplate* template_ = nullptr;
  std::unordered_map<int, QWidget*> controls_;
  std::unique_ptr<TemplateRows> rows_;
};

}  // namespace AdvancedControl
