#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QPointer>

#include "AdvancedControlExport.h"
#include "pages/common/SettingsDialog.h"
#include "pages/common/ValueControls.h"
#include "settings/Rows.h"

class CComboBox;
class PageVeil;
class StatusLine;
class WaitWatch;

/// A page or pop-up made of a table of rows: binds them to the template's controls, shows those
/// that the model has, fills their lists, reads them, and does with a change what each row says.
/// What fits no row is a handler of the class derived from it, which takes the place of the
/// generated one.
class ADVANCED_CONTROL_EXPORT RowDialog : public SettingsDialog {
  Q_OBJECT

 public:
  /// `table` outlives the dialog.
  RowDialog(int templateNumber, const PageTable& table, CWnd* owner);
  ~RowDialog() override;

  /// One line for each control of the table; `OwnNotifications` replace those of the same control.
  const NotificationMap& Notifications() const final;

  /// The commands that a refresh sends for the rows in their present state, in order. A row that
  /// asks further, by what it has read, is here with its first question.
  virtual std::vector<PjtCommand> Reads() const;

  /// A row's name as a person reads it.
  static QString CaptionText(const PageRow& row);

  /// From now until the next complete refresh no value shown is known to be true.
  void MarkUnread();

  /// Fills the lists that have other entries for the model as it is now than they had `before`.
  void RefillLists(const ModelData& before);

  /// What a person sees while the page waits for the projector: rows that are not read yet are
  /// dimmed, and the cursor tells to wait. Called again, it follows the reading.
  void ShowWaiting(bool waiting);

  /// What goes on meanwhile, in words: how far the reading has come.
  QString WaitingText() const;

 protected:
  /// The page is read while this lives.
  class Reading {
   public:
    explicit Reading(RowDialog& page);
    ~Reading();
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

   private:
    RowDialog& page_;
  };

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
  /// Shows a state, or a dash for one that cannot be read.
  virtual void ShowState(const StateRow& row, std::optional<int> value);
  /// A row of an input source is read, or is about to be changed: `source` is its source, or
  /// nothing while that is unknown.
  virtual void ShowSource(std::optional<int>) {}
  /// A reset or an action of the table asks for the page to be read again.
  virtual void ReadAgain() { Refresh(); }

  /// The user operated this control: does what its row says.
  void Act(int control);
  void OnHScroll(CSliderCtrl& slider) { Release(slider); }
  /// A slider of the table was released. False when the projector refused the position.
  bool Release(CSliderCtrl& slider);

  /// Whether the model has the row that this control belongs to.
  bool Has(int control) const;
  /// The controls of a value row, by the number of its slider, or of its field without one.
  ValueControls& Value(int control);
  /// Reads a list again and shows what it says; a failed read changes nothing.
  void ReadBack(int control);
  /// Fills a list of resets with those of the present rows; nothing is selected then.
  void FillResets(int list);
  /// The reset chosen in the list that a button belongs to, or null.
  const ResetEntry* ChosenReset(int button) const;

  CComboBox& List(int control) const;

  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  void OnBusy() override;
  void OnIdle() override;
  void OnStale() override { stale_ = true; }

 private:
  /// What there is to say about a row.
  enum class Note : std::uint8_t { None, Refused, NotOffered, Unanswered, NoEntries, Range };

  /// The input source of a row while it is read or changed; nothing while that is unknown.
  using Source = std::optional<int>;

  /// What a dialog holds of one row.
  struct Bound {
    bool present = false;  // shown and read
    bool unread = false;   // what it shows need not be so
    Note note = Note::None;
    ValueControls value;
    std::optional<int> opened;  // position read first since the dialog was opened
    Source source;              // that this belongs to
  };

  void RefreshRow(std::size_t index, Source source);
  void RefreshRow(std::size_t index, Source source, const CPjtInterface::Tally& before);
  void Tell(std::size_t index, Note note);
  void GreyRowCaption(std::size_t index);
  Note NoteOf(std::size_t index, const CPjtInterface::Tally& before) const;
  QString NoteText(const PageRow& row, const Bound& bound) const;
  void UpdateVeil();

  void DrawArrows();
  void ShowPresentRows();
  void ExplainEmptyPage();
  void UseTemplateLists();
  void FillList(int control, const Entries& entries);

  void Prepare(const ListRow& row, Bound& bound);
  void Prepare(const ValueRow& row, Bound& bound);
  void Prepare(const ActionRow& row, Bound& bound);
  void Prepare(const ResetRow& row, Bound& bound);
  void Prepare(const auto&, Bound&) {}

  /// The input source of a row, as `AskSource`. What rows showed of another one is forgotten.
  std::optional<int> AskFor(OfSource of);
  std::vector<PjtCommand> ReadsFrom(std::size_t first, OfSource known, Source source) const;

  // Of the rows' context menu, in RowMenu.cpp. A position is a number shown, the place of a list's
  // entry, or whether a box is checked.
  std::optional<std::size_t> RowAt(QPoint at);
  std::optional<int> ShownPosition(std::size_t index) const;
  bool ShowMenu(QPoint at, QPoint onScreen);
  bool CanMoveTo(std::size_t index, int position) const;
  Range EnteredRange(const ValueRow& row, const Bound& bound) const;
  void AskForNumber(std::size_t index);
  void MoveTo(std::size_t index, int position);
  void PutBack(std::size_t index);

  void Refresh(const ListRow& row, Bound& bound, Source source);
  void Refresh(const ValueRow& row, Bound& bound, Source source);
  void Refresh(const CheckRow& row, Bound& bound, Source source);
  void Refresh(const StateRow& row, Bound& bound, Source source);
  void Refresh(const auto&, Bound&, Source) {}

  // What a user's act does, in RowActs.cpp.
  static bool Owns(const PageRow& row, int control);
  void Operate(const ListRow& row, Bound& bound, int control);
  void Operate(const ValueRow& row, Bound& bound, int control);
  void Operate(const CheckRow& row, Bound& bound, int control);
  void Operate(const ActionRow& row, Bound& bound, int control);
  void Operate(const ResetRow& row, Bound& bound, int control);
  void Operate(const auto&, Bound&, int) {}

  void ReadBack(const ListRow& row, int source);
  void ReadAgainAfter(Rereads rereads, bool done);

  void Select(const ListRow& row, int value);
  void Preselect(int list);

  // Of value rows, in ValueRows.cpp.
  void Step(const ValueRow& row, ValueControls& controls, bool upwards);
  /// Steps until the number is shown, or no step leads nearer to it.
  void StepTo(const ValueRow& row, ValueControls& controls, int number);
  bool Drag(const ValueRow& row, ValueControls& controls);
  void Refuse(const ValueRow& row, ValueControls& controls, int position, bool told);
  void RunReset(const ValueRow& row, ValueControls& controls);
  void ShowAgain(int control);
  void AddStatusLine();

  const PageTable& table_;
  std::vector<Bound> bound_;  // one for each row of the table
  mutable std::optional<NotificationMap> notifications_;

  int readings_ = 0;  // one in another
  int sentBefore_ = 0;
  bool waiting_ = false;
  bool stale_ = false;
  QPointer<PageVeil> veil_;  // only while it is seen
  // Of a pop-up; a page has those of its dialog.
  std::unique_ptr<WaitWatch> watch_;
  QPointer<StatusLine> status_;
  CPjtInterface::Tally sentWhenIdle_;
};
