#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "pages/common/PageReader.h"
#include "pages/common/PageRows.h"
#include "pages/common/PendingInput.h"
#include "pages/common/RowMenus.h"
#include "pages/common/RowResets.h"
#include "pages/common/SettingsDialog.h"
#include "pages/rows/RowView.h"

namespace AdvancedControl {

class Waiting;

/// A page or pop-up made of a table of rows. It makes a view for each row, shows the rows that the
/// model has, and passes each user action to the view of the control's row. A derived class handles
/// controls that fit no kind of row; its handlers replace the generated ones. User-interface thread
/// only.
class ADVANCED_CONTROL_EXPORT RowDialog : public SettingsDialog, private RowHost {
  Q_OBJECT

 public:
  /// `table` must outlive the dialog. `owner` may be null and is not owned.
  RowDialog(int templateNumber, const PageTable& table, CWnd* owner);
  ~RowDialog() override;

  /// One line for each control of the table; `OwnNotifications` replace those of the same control.
  const NotificationMap& Notifications() const final;

  /// The reader of the page, owned by it.
  PageReader& Reader() { return reader_; }

  /// Refills the lists whose entries for the present model differ from those for `before`.
  void RefillLists(const ModelData& before);

 protected:
  /// The notifications that the derived class handles itself.
  virtual std::vector<Notification> OwnNotifications() const { return {}; }

  void DoDataExchange() override;
  /// Localizes the captions, shows the model's rows, sets ranges and fills lists. If the model has
  /// none of the rows, the page says so.
  bool OnInitDialog() override;

  /// Shows the model's rows, sets ranges and fills lists. Does nothing for a model that uses the
  /// template as it is.
  void PrepareRows();

  /// Reads and shows every row that the model has, in the table's order.
  void Refresh();

  void ReadAgain() override { Refresh(); }

  /// Does what the row of this control says; called when the user has operated the control.
  void Act(int control);
  /// Sends a slider's position; called when the user has released it. False if the projector
  /// refused.
  bool Release(CSliderCtrl& slider);

  /// The view of the control's row, which must be a `View`.
  template <class View = RowView>
  View& Row(int control) const {
    return static_cast<View&>(*RowOf(GetDlgItem(control)));
  }

  HandlerWatch& Watch() override;

  bool KeepsInput(const QWidget& control) const override { return pending_.Keeps(control); }
  void Handle(const Notification& entry, CSliderCtrl* slider) override;
  void KeepInput(const Notification& entry, CSliderCtrl* slider) override;

 private:
  SettingsDialog& Dialog() final { return *this; }
  RowView* RowOf(const QWidget* control) const final;
  std::optional<int> AskFor(OfSource of) final { return reader_.AskFor(of); }
  void ReadRow(RowView& row, int source) final { reader_.Read(row, source); }
  void ShowNotes(const RowView& row) final { reader_.Notes().Show(row); }

  PageRows rows_;
  mutable std::optional<NotificationMap> notifications_;
  PageReader reader_;
  RowMenus menus_;
  RowResets resets_;
  PendingInput pending_;
  std::unique_ptr<Waiting> waiting_;  // only of a pop-up; a page uses that of its dialog
};

}  // namespace AdvancedControl
