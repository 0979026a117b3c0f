#pragma once

#include <functional>
#include <memory>

#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QTimer>

#include "host/CAdvanceDlg.h"
#include "pages/common/CTabPage.h"
#include "tests/support/Models.h"
#include "tests/support/RecordingChannel.h"
#include "toolkit/CComboBox.h"

/// Whether the wheel was used; otherwise it scrolls what is around the control.
bool Wheel(QWidget& control, int notches, Qt::KeyboardModifiers keys = {});
/// Shows a window in front of all others.
void Activate(QWidget& window);

/// The name of a control in failures: "Brightness +".
std::string NameOf(const QWidget& control);

/// Operates a dialog's controls as a user does: mouse, keys and wheel on the real widgets.
class DialogDriver {
 public:
  explicit DialogDriver(CDialog& dialog) : dialog_(dialog) {}

  template <class Control>
  Control& Item(int id) const {
    return dialog_.Item<Control>(id);
  }

  void Click(int id) const;
  /// Opens the list and picks a position.
  void Choose(int id, int position) const;
  /// Drags the slider's handle until it shows this position, and releases it.
  void Drag(int id, int position) const;
  void Press(int id, Qt::Key key) const;
  bool Wheel(int id, int notches, Qt::KeyboardModifiers keys = {}) const {
    return ::Wheel(Item<QWidget>(id), notches, keys);
  }

  bool IsEnabled(int id) const;
  /// The text of a label, button, field, or of a list's selected entry.
  QString Text(int id) const;
  QStringList Entries(int id) const;
  int Selected(int id) const;
  int SliderAt(int id) const;

 private:
  CDialog& dialog_;
};

/// Opens the dialog for a model on a projector.
void Open(CAdvanceDlg& dialog, const CModelInfo2& model,
          std::shared_ptr<ProjectorChannel> projector);

/// The whole dialog, opened with a scripted projector.
class OpenDialog {
 public:
  /// `tab` is selected after opening; the commands sent until then are forgotten.
  explicit OpenDialog(const CModelInfo2& model, int tab = 0,
                      const std::function<void(RecordingChannel&)>& script = {});

  CAdvanceDlg& Dialog() { return dialog_; }
  RecordingChannel& Projector() { return *projector_; }
  CTabPage& Page() { return *dialog_.ShownPage(); }
  DialogDriver Driver();
  void SelectTab(int tab);

 private:
  std::shared_ptr<RecordingChannel> projector_ = std::make_shared<RecordingChannel>();
  CAdvanceDlg dialog_;
};

enum class PopUp { Gamma, ColorTemp, Service };

/// Makes a pop-up of an open dialog, with the dialog's projector and model.
std::unique_ptr<RowDialog> MakePopUp(PopUp kind, CAdvanceDlg& host);
/// Opens a pop-up, or opens it again. Either way it reads the projector.
void Open(CDialog& popUp);

/// The lines of a control's menu, with disabled ones in brackets. Chooses `choice`, which must not
/// act before the menu is closed, because it may wait for the projector. With `overtaken`, a
/// handler runs then.
std::string Menu(CDialog& page, int id, const char* choice = "", bool overtaken = false);

/// What the line beside Close says.
std::string Said(const QWidget& dialog);
/// The controls of the rows that are marked as refused.
std::vector<int> Marked(const QWidget& dialog);

/// Whether the user clicks or chooses from such a control.
bool UserOperates(ControlKind kind);
/// The numbers of those controls, in the order of the template.
std::vector<int> OperatedControls(const CDialog& dialog);
/// The controls that can be used now, without Close.
std::vector<QWidget*> UsableControls(const CDialog& dialog);

/// The number in an environment variable, or `otherwise`.
int EnvironmentNumber(const char* variable, int otherwise);

/// Answers the message boxes that open during its lifetime, and records their texts.
class MessageBoxes {
 public:
  /// `yes` answers yes/no questions.
  explicit MessageBoxes(bool yes = false);

  /// The texts of the boxes answered since the last call.
  std::vector<QString> Take();

 private:
  QTimer timer_;
  bool yes_;
  std::vector<QString> texts_;
};

/// Runs `act` on the next modal dialog of this class, then closes it with Esc.
void WhenModal(const char* className, std::function<void(CDialog&)> act);
