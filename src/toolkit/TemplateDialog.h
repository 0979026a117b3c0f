#pragma once

#include <unordered_map>
#include <vector>

#include <QDialog>
#include <QPointer>

#include "AdvancedControlExport.h"
#include "toolkit/CWnd.h"
#include "toolkit/DialogTemplate.h"

class QGridLayout;

/// The layout of a numbered template: makes its controls, finds them by their numbers, and gives
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

  /// The control with this number, which the template must hold as a `Control`.
  template <class Control>
  Control& Item(int id) const {
    auto* control = qobject_cast<Control*>(GetDlgItem(id));
    if (control == nullptr) NoSuchControl(id);
    return *control;
  }

  /// Whether input to `target`, the dialog or a widget in it, leads out of the dialog or is no
  /// control's: tabs, Close and the space between the controls, but nothing of a page.
  bool IsWayOut(const QWidget& target) const;

  /// Shows or removes the row that holds this control; the rows below close the gap.
  void ShowRow(int id, bool present);

  /// Size that the template gives or that the present contents need, whichever is larger.
  QSize DialogSize() const;

 protected:
  TemplateDialog(int templateNumber, CWnd* parent);

  /// Deletes the controls there are, and builds those of the template. False when no module of the
  /// resource chain has the template; the dialog then stays empty.
  bool BuildControls();
  /// Completes the layout once texts and present rows are settled, and fits a window to its screen.
  void FinishLayout();
  /// Lays the present rows out afresh; needed after texts or presence changed later.
  void UpdateRows();

  const std::unordered_map<int, QWidget*>& Controls() const { return controls_; }
  /// Whether the rows scroll, because the screen has no room for them all.
  bool IsScrolled() const { return scroll_ != nullptr; }

  /// Where the row of a control is, from its first control to its last.
  QRect RowRect(int id);

  /// Greys the captions of a control's row where no control of it can be operated.
  void GreyCaption(int id);

  /// Shows a sentence at the top of a dialog whose upper rows are all absent.
  void ShowNotice(const QString& text);

  /// Lays a widget out in the row of Close, on the other side.
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
  void LayOut();
  void GiveMnemonics();
  void FitToScreen();

  int templateNumber_;
  const DialogTemplate* template_ = nullptr;
  QPointer<QWidget> scroll_;  // of the rows of a window that the screen has no room for
  int pitch_ = 0;             // of the present rows, in pixels
  std::unordered_map<int, QWidget*> controls_;
  std::vector<const QWidget*> waysOut_;  // tabs and Close
  std::vector<PlacedRow> rows_;          // of the template, in its order
};
