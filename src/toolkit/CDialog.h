#pragma once

#include <unordered_map>
#include <vector>

#include <QDialog>
#include <QPointer>

#include "AdvancedControlExport.h"
#include "toolkit/CWnd.h"
#include "toolkit/DialogTemplate.h"
#include "toolkit/NotificationMap.h"

class QGridLayout;

/// A dialog built from a numbered template, either run modally or created as a child (a page of
/// another dialog). Esc and Enter never act on a child; Esc closes the dialog it belongs to.
///
/// A handler may run an event loop: while a command waits, or for a message box or pop-up. Until it
/// has returned the dialog must not be deleted; `deleteLater` waits for that by itself.
class ADVANCED_CONTROL_EXPORT CDialog : public QDialog {
  Q_OBJECT

 public:
  /// `owner` may be null: a modal dialog then belongs to the dialog opened last, or to the active
  /// window.
  explicit CDialog(int templateNumber, CWnd* owner = nullptr);
  ~CDialog() override;

  /// Builds the controls from the template and initialises the dialog without showing it. False
  /// when no module of the resource chain has the template; the dialog then stays empty.
  bool Create();

  /// Creates, shows and runs the dialog until it is closed; QDialog::Accepted or Rejected, or −1
  /// when it could not be created. While it runs, its owner takes no input. A dialog without a
  /// parent that dies while it runs ends the run as Rejected; so does the death of its owner.
  int DoModal();

  /// The parent, or the window that a running dialog without a parent belongs to; may be null.
  QWidget* Owner() const { return parentWidget() != nullptr ? parentWidget() : owner_.data(); }

  /// Number of the sentence that `ShowNotice` shows.
  static constexpr int kNoticeId = -1;

  int TemplateNumber() const { return templateNumber_; }
  /// The template the controls were built from; null before `Create`.
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

  /// Shows or removes the row that holds this control; the rows below close the gap.
  void ShowRow(int id, bool present);

  /// Size that the template gives or that the present contents need, whichever is larger.
  QSize DialogSize() const;

  /// What the dialog's controls report; each dialog class states its own.
  virtual const NotificationMap& Notifications() const;

  void setVisible(bool visible) override;
  void done(int result) override;

 protected:
  /// Binds members to controls; runs before `OnInitDialog`.
  virtual void DoDataExchange() {}
  /// Fills and lays out; true leaves the focus to the toolkit.
  virtual bool OnInitDialog() { return true; }
  /// Runs once when a created top-level dialog closes or dies.
  virtual void OnDestroy() {}

  /// Runs `OnDestroy` if the dialog is created and it has not run yet. A class that overrides
  /// `OnDestroy` calls this in its destructor.
  void Destroy();

  /// Shows a sentence at the top of a dialog whose upper rows are all absent.
  void ShowNotice(const QString& text);

  /// Lays the present rows out afresh; needed after texts or presence changed outside `Create`.
  void UpdateRows();

  /// Dialog units to device-independent pixels, in the dialog's font.
  QSize FromDialogUnits(int width, int height) const;

  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

  /// Holds back the deletion of `dialog`'s top-level dialog while it lives.
  class Busy {
   public:
    explicit Busy(const CDialog& dialog);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

   private:
    CDialog* top_;
  };

 private:
  struct PlacedRow {
    QGridLayout* grid;
    int gridRow;
    bool present = true;
    std::vector<QWidget*> controls;
  };

  [[noreturn]] void NoSuchControl(int id) const;
  void RunHandler(const Notification& entry, CSliderCtrl* slider);
  void AdoptOwner();
  void BuildControls();
  void ConnectNotifications();
  void NameControls();
  PlacedRow* RowOf(int id);

  int templateNumber_;
  const DialogTemplate* template_ = nullptr;
  bool created_ = false;
  int busy_ = 0;
  bool deletionWaits_ = false;
  QPointer<QWidget> owner_;
  int pitch_ = 0;  // of the present rows, in pixels
  std::unordered_map<int, QWidget*> controls_;
  std::vector<PlacedRow> rows_;
};
