#pragma once

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "AdvancedControlExport.h"
#include "pages/common/PageReader.h"
#include "pages/common/RowMenus.h"
#include "pages/common/SettingsDialog.h"
#include "pages/rows/RowView.h"

class Waiting;

/// A page or pop-up made of a table of rows: makes a view for each, shows those that the model has,
/// and leads to each view what its controls report. What fits no row is a handler of the class
/// derived from it, which takes the place of the generated one.
class ADVANCED_CONTROL_EXPORT RowDialog : public SettingsDialog, private RowHost {
  Q_OBJECT

 public:
  /// `table` outlives the dialog.
  RowDialog(int templateNumber, const PageTable& table, CWnd* owner);
  ~RowDialog() override;

  /// One line for each control of the table; `OwnNotifications` replace those of the same control.
  const NotificationMap& Notifications() const final;

  /// What reads the page: which commands that sends, and what a person sees of it.
  PageReader& Reader() { return reader_; }

  /// Fills the lists that have other entries for the model as it is now than they had `before`.
  void RefillLists(const ModelData& before);

 protected:
  /// The lines of controls that the class handles itself.
  virtual std::vector<Notification> OwnNotifications() const { return {}; }

  void DoDataExchange() override;
  /// Localizes the captions, shows the model's rows, sets ranges and fills lists. A page that has
  /// none of its rows says so.
  bool OnInitDialog() override;

  /// Shows the model's rows, sets ranges and fills lists. Nothing for a model that keeps the
  /// template as it is.
  void PrepareRows();

  /// Reads and shows every present row in the table's order.
  void Refresh();

  void ShowSource(std::optional<int>) override {}
  void ShowState(std::optional<int>) override {}
  void ReadAgain() override { Refresh(); }

  /// The user operated this control: does what its row says.
  void Act(int control);
  /// A slider of the table was released. False when the projector refused the position.
  bool Release(CSliderCtrl& slider);

  /// The view of the row that a control belongs to, which is of this kind.
  template <class View = RowView>
  View& Row(int control) const {
    return static_cast<View&>(*RowOf(GetDlgItem(control)));
  }

  void OnBusy() override;
  void OnIdle() override;
  void OnLeave() override;
  void OnReturn() override;
  void OnStale() override { stale_ = true; }

 private:
  SettingsDialog& Dialog() final { return *this; }
  RowView* RowOf(const QWidget* control) const final;
  std::optional<int> AskFor(OfSource of) final { return reader_.AskFor(of); }
  void ReadRow(RowView& row, int source) final { reader_.Read(row, source); }

  const PageTable& table_;
  const PageReader::Rows rows_;  // in the table's order
  std::unordered_map<const QWidget*, RowView*> rowsByControl_;
  mutable std::optional<NotificationMap> notifications_;
  PageReader reader_;
  RowMenus menus_;
  bool stale_ = false;
  // Of a pop-up; a page waits with its dialog.
  std::unique_ptr<Waiting> waiting_;
};
