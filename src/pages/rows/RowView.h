#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include <QString>

#include "device/CPjtInterface.h"
#include "pages/common/SettingsDialog.h"
#include "pages/rows/RowHost.h"
#include "toolkit/NotificationMap.h"

/// One row of a page: its widgets, what it remembers, and what it does. There is a class for each
/// kind of row.
///
/// A position is what a row's control can be moved to: a number shown, the place of a list's entry,
/// or whether a box is checked.
class RowView {
 public:
  /// The input source that a row is read for; 0 where it belongs to none, nothing while unknown.
  using Source = std::optional<int>;

  /// What there is to say about a row.
  enum class Note : std::uint8_t { None, Refused, NotOffered, Unanswered, NoEntries, Range };

  /// A control that the user operates, and how it reports that.
  struct Operated {
    Notification::Event event;
    int control;
  };

  /// A row of `table`; all three outlive the view.
  RowView(const PageTable& table, const PageRow& row, RowHost& host)
      : table_(table), row_(row), host_(host) {}
  virtual ~RowView() = default;
  RowView(const RowView&) = delete;
  RowView& operator=(const RowView&) = delete;

  const PageRow& Row() const { return row_; }
  QString Caption() const { return CaptionText(row_); }
  /// A row's name as a person reads it.
  static QString CaptionText(const PageRow& row);

  /// All controls of the row that its page finds it by.
  virtual std::vector<int> Controls() const;
  /// Those of them that report to `Act`, and the lists beside its button.
  virtual std::vector<Operated> OperatedControls() const { return {}; }

  /// Finds the row's controls, which the page has made anew.
  virtual void Bind() = 0;
  /// Sets ranges and fills lists for the model, whether it has the row or not.
  virtual void Prepare() {}
  /// Takes the template's entries as they are, instead.
  virtual void UseTemplate() {}
  /// Fills a list that has other entries now than it had for the model `before`.
  virtual void Refill(const ModelData&) {}

  /// Whether it shows what is read of the projector.
  virtual bool ShowsSetting() const { return true; }
  /// Reads its setting and shows that.
  virtual void Read(Source) {}
  /// Shows its value afresh after a reset, without remembering it.
  virtual void ShowAgain() {}
  /// All rows of the page have been read.
  virtual void OnPageRead() {}
  /// The user has operated this control.
  virtual void Act(int) {}

  /// What it shows; nothing where that is no position.
  virtual std::optional<int> Position() const { return {}; }
  /// A position as it is shown.
  virtual QString TextAt(int position) const { return QString::number(position); }
  /// What it shows, as a text.
  virtual QString Text() const;
  /// Whether a person can change what it shows.
  virtual bool CanMove() const { return true; }
  virtual bool CanMoveTo(int) const { return false; }
  /// Moves as under a hand, so that all that follows is the same; nothing where it cannot.
  virtual void MoveTo(int) {}
  /// The numbers that can be entered; nothing for a row that shows none.
  virtual std::optional<Range> Numbers() const { return {}; }
  /// Whether its controls are in use.
  virtual bool IsUsable() const;

  bool IsPresent() const { return present_; }
  /// Whether the model has the row. What it was when the dialog was opened begins anew.
  void SetPresent(bool present);
  bool IsUnread() const { return unread_; }
  void SetUnread(bool unread) { unread_ = unread; }

  Note CurrentNote() const { return note_; }
  QString NoteText() const;
  /// What there is to say after a reading, by what was sent before it.
  Note NoteAfter(const CPjtInterface::Tally& before) const;
  /// Says it: in the tips of its controls, and to screen readers.
  void Tell(Note note);
  /// Greys the row's caption, or not, as its controls are.
  void GreyCaption();

  /// The position read first since the dialog was opened.
  std::optional<int> Opened() const { return opened_; }
  void RememberOpened();
  /// It belongs to this source from now on; what it remembers of another one is forgotten.
  void SetSource(int source);

 protected:
  RowHost& Host() const { return host_; }
  SettingsDialog& Dialog() const { return host_.Dialog(); }
  CPjtInterface& Projector() const { return *Dialog().projector; }
  const ModelData& Model() const { return Dialog().Model(); }
  bool RefusedIsReadBack() const { return table_.refusedIsReadBack; }
  /// The setting as the projector has it; nothing where the source or the setting is unknown.
  std::optional<int> ReadSetting(Source source) const;

  /// Asks for the page to be read again where an action of this kind wants that.
  void ReadAgainAfter(Rereads rereads, bool done);

  virtual bool HasNoEntries() const { return false; }

 private:
  const PageTable& table_;
  const PageRow& row_;
  RowHost& host_;
  bool present_ = false;
  bool unread_ = false;  // what it shows need not be so
  Note note_ = Note::None;
  std::optional<int> opened_;
  Source source_;
};

/// The views of all rows of a table, in its order.
std::vector<std::unique_ptr<RowView>> MakeRowViews(const PageTable& table, RowHost& host);
