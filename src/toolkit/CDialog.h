#pragma once

#include <cstddef>
#include <functional>
#include <new>
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
/// another dialog). Esc and Enter never act on a child: Esc closes the dialog it belongs to, Enter
/// presses the button that has the focus and nothing else.
///
/// A handler may run an event loop: while a command waits, or for a message box or pop-up. What may
/// happen to the dialog meanwhile: it may be closed; `deleteLater` waits until the handler has
/// returned; its owner may die in any way. The dialog then leaves its owner and ends, together with
/// its pop-ups and message boxes, and is deleted after the handler if it was made with `new`. It
/// must not be deleted itself (`delete dialog`, or as a member of the owner).
///
/// While a handler runs, what the user does to the dialog's controls is dropped; only the ways out
/// act: tabs, Close, Esc, the window's own button. What any other control reports then is not
/// handled either.
class ADVANCED_CONTROL_EXPORT CDialog : public QDialog {
  Q_OBJECT

 public:
  /// `owner` may be null: a modal dialog then belongs to the dialog opened last, or to the active
  /// window.
  explicit CDialog(int templateNumber, CWnd* owner = nullptr);
  ~CDialog() override;

  // Tell the dialogs that a dying owner would have deleted.
  static void* operator new(std::size_t size);
  static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
  static void* operator new(std::size_t, void* place) noexcept { return place; }
  static void operator delete(void* dialog);
  static void operator delete(void* dialog, const std::nothrow_t&) { operator delete(dialog); }
  static void operator delete(void*, void*) {}

  /// Builds the controls from the template and initialises the dialog without showing it. False
  /// when no module of the resource chain has the template; the dialog then stays empty.
  bool Create();

  /// The same for a dialog beside the host's other windows: on screen before its first read waits
  /// for the projector. `place` runs when the dialog has its size and is not on screen yet.
  bool CreateShown(const std::function<void()>& place = {});

  /// Creates, shows and runs the dialog until it is closed; QDialog::Accepted or Rejected, or −1
  /// when it could not be created. It is on screen before its first read waits for the projector.
  /// While it runs, its owner takes no input. The death of the dialog, and the closing or death of
  /// its owner, end the run as Rejected.
  int DoModal();

  /// The parent, or the window that a running dialog without a parent belongs to; may be null.
  QWidget* Owner() const { return parentWidget() != nullptr ? parentWidget() : owner_.data(); }

  /// Number of the sentence that `ShowNotice` shows.
  static constexpr int kNoticeId = -1;

  /// Whether the dialog's window ended because its owner died; until it is created again.
  bool IsOrphaned() const;

  /// Whether a handler of the dialog's window runs; it may be waiting for the projector or for the
  /// answer to a box.
  bool IsBusy() const { return busy_ > 0; }

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

  /// A handler of `dialog`'s top-level dialog runs: while this lives, the dialog is not deleted and
  /// its controls take no input.
  class Busy {
   public:
    explicit Busy(const QWidget* dialog);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

   private:
    CDialog* top_;
  };

 protected:
  /// Binds members to controls; runs before `OnInitDialog`.
  virtual void DoDataExchange() {}
  /// Fills and lays out; true leaves the focus to the toolkit.
  virtual bool OnInitDialog() { return true; }
  /// Runs once when a created top-level dialog closes or dies.
  virtual void OnDestroy() {}

  /// The owner died while the dialog was open: from now on nothing may be sent. Handlers may still
  /// be running.
  virtual void OnOrphaned() {}

  /// The first handler begins, and the last one has returned.
  virtual void OnBusy() {}
  virtual void OnIdle() {}

  /// The user leaves what the running handlers do: they are to end at once, send nothing more and
  /// change nothing. `OnReturn` says that they are gone.
  virtual void OnLeave() {}
  virtual void OnReturn() {}

  /// A control has changed by itself and its handler could not run: it may show what is not so.
  virtual void OnStale() {}

  /// Leaves the running handlers, if any; they are gone when the last one returns, or when the one
  /// that knows them gone says so with `Return`.
  void Leave();
  void Return();
  bool IsLeft() const { return left_; }

  /// Between `Create` and closing.
  bool IsCreated() const { return created_; }
  /// Whether a modal dialog of this one is open.
  bool HasPopUp() const;

  /// Called by `OnInitDialog` when all is there but what is read from the projector: brings a
  /// dialog on screen that is to be seen before it is read.
  void ShowUnread();

  /// Where the row of a control is, from its first control to its last.
  QRect RowRect(int id);

  /// Greys the captions of a control's row where no control of it can be operated.
  void GreyCaption(int id);

  /// Runs `OnDestroy` if the dialog is created and it has not run yet. A class that overrides
  /// `OnDestroy` calls this in its destructor.
  void Destroy();

  /// Shows a sentence at the top of a dialog whose upper rows are all absent.
  void ShowNotice(const QString& text);

  /// Lays a widget out in the row of Close, on the other side.
  void PlaceBesideClose(QWidget& widget);

  /// Lays the present rows out afresh; needed after texts or presence changed outside `Create`.
  void UpdateRows();

  /// Dialog units to device-independent pixels, in the dialog's font.
  QSize FromDialogUnits(int width, int height) const;

  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  struct PlacedRow {
    QGridLayout* grid;
    int gridRow;
    bool present = true;
    std::vector<QWidget*> controls;
  };

  friend class InputGate;

  /// Top-level dialogs between `Create` and closing, oldest first.
  static std::vector<CDialog*>& Windows();

  [[noreturn]] void NoSuchControl(int id) const;
  bool Takes(const QWidget& target) const;
  void ClosePopUps();
  void CenterOnOwner();
  void RunHandler(const Notification& entry, CSliderCtrl* slider);
  void AdoptOwner();
  void WatchOwner();
  void OnOwnerDying();
  void EndOrphaned();
  void BuildControls();
  void FitToScreen();
  void GiveMnemonics();
  void ConnectNotifications();
  PlacedRow* RowOf(int id);

  int templateNumber_;
  const DialogTemplate* template_ = nullptr;
  const bool onHeap_;
  bool created_ = false;
  bool named_ = false;
  bool orphaned_ = false;
  int busy_ = 0;
  bool left_ = false;
  std::function<void()> showUnread_;
  bool deletionWaits_ = false;
  QPointer<QWidget> owner_;
  QMetaObject::Connection ownerDies_;
  QPointer<QWidget> scroll_;  // of the rows of a window that the screen has no room for
  int pitch_ = 0;             // of the present rows, in pixels
  std::unordered_map<int, QWidget*> controls_;
  std::vector<const QWidget*> waysOut_;  // tabs and Close
  std::vector<PlacedRow> rows_;
};
