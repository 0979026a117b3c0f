#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "device/CModelInfo2.h"
#include "device/CPjtInterface.h"
#include "device/CProjectorItem.h"
#include "device/ModelData.h"
#include "device/ModelDataSource.h"
#include "pages/common/DialogContext.h"
#include "pages/common/WantedSettings.h"
#include "settings/PageSets.h"
#include "toolkit/CDialog.h"

class CTabPage;
namespace AdvancedControl {
struct Snapshot;
}  // namespace AdvancedControl

/// The "Advanced Control" dialog of one projector: a tab per group of settings, each read live and
/// changed at once.
///
/// To use it, construct it, pass the model to one of the `CopyData` forms, set the channel of
/// `Projector()`, and call `DoModal`, or `CreateShown` for a dialog beside the host's other
/// windows. The dialog copies all data passed to it. User-interface thread only; commands are sent
/// from that thread too.
///
/// Data passed to a `CopyData` form while the dialog is open, or while one of its handlers still
/// runs, takes effect when the dialog is created next. An open dialog keeps the model and the
/// connection that it was created with, and `Model` returns that model.
///
/// If the host names no inputs, the dialog uses those that the projector reports over PJLink, once
/// they are known and no handler runs.
class ADVANCED_CONTROL_EXPORT CAdvanceDlg : public CDialog,
                                            public AdvancedControl::ModelDataSource,
                                            public AdvancedControl::DialogContext {
  Q_OBJECT

 public:
  /// `parent`, not owned, is the window that takes no input while the dialog runs; may be null.
  explicit CAdvanceDlg(CWnd* parent = nullptr);
  ~CAdvanceDlg() override;

  /// Oldest intake form: no `ModelCode`, no whisper list. `mySourceNames` has 1024 bytes (16 names
  /// of 64), its value columns 16 integers each; each further list 32 integers and 2048 bytes (32
  /// names of 64). Arrays are copied whole, whatever the counts say; null leaves zeros.
  void CopyData(std::string modelName, int dialogType, int mySourceCount, const char* mySourceNames,
                const int* mySourceFirstValues, const int* mySourceSecondValues, int aspectCount,
                const int* aspectValues, const char* aspectNames, int gammaCount,
                const int* gammaValues, const char* gammaNames, int colorTempCount,
                const int* colorTempValues, const char* colorTempNames);

  /// The same with `ModelCode` and the whisper list.
  void CopyData2(std::string modelName, int modelCode, int dialogType, int mySourceCount,
                 const char* mySourceNames, const int* mySourceFirstValues,
                 const int* mySourceSecondValues, int whisperCount, const int* whisperValues,
                 const char* whisperNames, int aspectCount, const int* aspectValues,
                 const char* aspectNames, int gammaCount, const int* gammaValues,
                 const char* gammaNames, int colorTempCount, const int* colorTempValues,
                 const char* colorTempNames);

  /// Range texts 0..31, in order; the two tone ranges are not touched.
  void CopyData3(std::string text0, std::string text1, std::string text2, std::string text3,
                 std::string text4, std::string text5, std::string text6, std::string text7,
                 std::string text8, std::string text9, std::string text10, std::string text11,
                 std::string text12, std::string text13, std::string text14, std::string text15,
                 std::string text16, std::string text17, std::string text18, std::string text19,
                 std::string text20, std::string text21, std::string text22, std::string text23,
                 std::string text24, std::string text25, std::string text26, std::string text27,
                 std::string text28, std::string text29, std::string text30, std::string text31);

  /// Takes everything from a model record, with its connection entry `connection` (0..4; any other
  /// index gives an empty connection). Null changes nothing.
  void CopyData(const CModelInfo2* model, int connection);

  /// Takes everything from a projector of the host's list: its own name and connection, and the
  /// record of its model. Null changes nothing. An item without a record gives a model with only a
  /// name.
  void CopyData(const CProjectorItem* item);

  /// Replaces the input sources, even while the dialog is open, for a host that learns of them
  /// later. Lists of sources are refilled, and the shown page is read again once no command waits.
  void ReplaceSources(const AdvancedControl::SourceList& sources);

  /// The connection object that all pages use; owned by the dialog.
  CPjtInterface& Projector() { return projector_; }

  const AdvancedControl::ModelData& Model() const override;

  /// Passed on to the connection object when the dialog is initialised.
  void SetHostOption(bool option);

  /// Sets after how many hours a lamp of this model should be replaced; 0, the default, if that is
  /// not known. The status page shows the lamp time as a part of it from the next reading on.
  void SetRatedLampHours(int hours);

  /// Configures the connection, creates the pages and inserts the tabs.
  bool OnInitDialog() override;
  /// Shows the page of the selected tab, reads it, and hides all others. If a command waits, its
  /// handler is abandoned, and the page is read once the handler has returned.
  void DispTabScreen();
  /// Called when another tab was selected.
  void OnSelchangeAdvanceTab();
  /// Restores the host's resource module.
  void OnDestroy() override;

  /// Gives the projector's own name, UTF-8, which the dialog and its boxes then show; empty for
  /// none. Call it before the dialog is created.
  void SetProjectorName(std::string name);
  std::string ProjectorName() const override;

  /// Gives the settings that the projector should have: rows that have another value are marked,
  /// and offer to set it; without wanted settings nothing is marked. May be called at any time.
  /// Values that the model's rows cannot show are ignored. If the shown page was read without
  /// asking for the input source that a wanted value belongs to (the volume's), it is soon read
  /// again.
  void SetWanted(AdvancedControl::WantedSettings wanted);
  /// The same with the settings of a snapshot.
  void SetWanted(const AdvancedControl::Snapshot& wanted);
  const AdvancedControl::WantedSettings* Wanted() const override;

  /// Gives the settings that the host has last seen on the projector. The tab of a page that was
  /// not read then shows how many of its wanted settings differed at that time, with a question
  /// mark; without them such a tab shows nothing. The dialog never reads a page only to count. May
  /// be called at any time.
  void SetLastSeen(const AdvancedControl::Snapshot& seen);
  std::optional<int> LastSeen(std::string_view key) const override;

  /// The page of the selected tab, or null.
  CTabPage* ShownPage() const;
  /// Any page of the dialog; only those of the model's page set have controls once it is open.
  CTabPage& Page(AdvancedControl::PageId page) const;

  const AdvancedControl::NotificationMap& Notifications() const override;

  /// The size that shows all tabs and every page completely. If the screen is too small for it, the
  /// dialog opens smaller and the page scrolls.
  QSize sizeHint() const override;

 protected:
  /// Removes the channel until the dialog is created again.
  void OnOrphaned() override;
  AdvancedControl::HandlerWatch& Watch() override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Parts;

  /// The model to use for the next creation.
  AdvancedControl::ModelData& ModelToCreate();

  CPjtInterface projector_;
  std::unique_ptr<Parts> parts_;
};
