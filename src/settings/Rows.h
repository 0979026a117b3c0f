#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

#include "AdvancedControlExport.h"
#include "settings/Call.h"
#include "settings/ListEntry.h"
#include "settings/ModelCodes.h"
#include "settings/Range.h"

// The kinds of rows that a page's table is made of. A row tells what a setting is called, how it is
// read, sent and stepped, and by which numbered controls a dialog shows it; no widget is needed to
// use it. `key` is the setting's stable name, unique within a model; `caption` is its number in the
// caption category of the catalog.

/// What a list shows for a value that it has no entry for.
enum class NoEntry : std::uint8_t {
  Clears,      ///< Nothing is selected.
  Keeps,       ///< The selection stays.
  IsPosition,  ///< The value is taken for the position.
  Ignored,     ///< As if it had not been read: the list's state stays as well.
};

/// What follows when the projector refuses a choice.
enum class Refused : std::uint8_t {
  Silent,             ///< Nothing; the list keeps the choice until the next refresh.
  ReadsBack,          ///< The value is read and shown.
  ReadsBackPosition,  ///< The same, but the value read is taken for the position.
};

/// How a list may differ from the plain one, whose entry sends the value that it stands for.
struct ListRules {
  bool sendsPosition = false;  ///< What is sent is the entry's position.
  NoEntry noEntry = NoEntry::Clears;
  Refused refused = Refused::Silent;
  int error = 0;  ///< Text that tells a refusal; 0 for none.
  bool failedReadDisables = true;
  bool emptyIsNotRead = false;  ///< A list without entries is disabled without asking.
  bool tellsText = false;       ///< The connection gets the chosen entry's text before the setting.
  /// After every choice the setting is read as in a refresh: the setter has no result, so nothing
  /// else tells what the projector made of it.
  bool readsBackAlways = false;
};

/// A setting with a list of values.
struct ListRow {
  std::string_view key;
  int caption = 0;
  int control = 0;
  Entries entries{};
  std::optional<Call> read{};
  std::optional<Call> send{};  ///< None: the list is shown and a choice goes nowhere.
  ListRules rules{};
  Presence on{};
};

/// Controls of a value row; 0 for one that it does not have.
struct ValueIds {
  int minus = 0, slider = 0, plus = 0, field = 0;
};

/// What follows when the projector refuses a slider's new position.
enum class RefusedDrag : std::uint8_t {
  Told,      ///< The row's text, and the slider goes back to the last value known.
  GoesBack,  ///< Only the latter.
  Stays,     ///< Nothing: the slider stays, and the field keeps the old value.
};

/// No bounds of − and + on our side.
inline constexpr Range kUnbounded{-0x10000, 0x10000};

/// A setting with a number: slider with − and +, or a field with two arrow buttons. Shown values
/// are device values − `bias`. A step is sent only inside the bounds, and the value then read back;
/// a refused one puts the slider back and is told with `error`, unless that is 0.
struct ValueRow {
  static constexpr int kNoRangeText = -1;

  std::string_view key;
  int caption = 0;
  ValueIds ids{};
  std::uint16_t code = 0;  ///< For `Get`, `Set`, `Inc` and `Dec`, unless one is told apart:
  std::optional<Call> read{}, set{}, down{}, up{};
  int bias = 0;
  int rangeText = kNoRangeText;             ///< `RangeIndex` of the model's own slider range.
  PerModel<Range> range{};                  ///< Shown values; of the slider where there is no text.
  std::optional<PerModel<Range>> bounds{};  ///< Shown values, of − and +; else the slider's range.
  int ticks = 1;
  std::optional<int> initial{};  ///< Taken for the last value known until there is one.
  RefusedDrag refusedDrag = RefusedDrag::Told;
  int error = 0;
  bool greysField = false;  ///< A failed read takes the field out of use as well.
  Presence on{};

  constexpr Call Reading() const { return read.value_or(Get(code)); }
  constexpr Call Setting() const { return set.value_or(Set(code)); }
  constexpr Call Stepping(bool upwards) const {
    return upwards ? up.value_or(Inc(code)) : down.value_or(Dec(code));
  }
  /// The control by which the row is found.
  constexpr int Control() const { return ids.slider != 0 ? ids.slider : ids.field; }
};

/// A switch with a check box; a refused change is read back.
struct CheckRow {
  std::string_view key;
  int caption = 0;
  int control = 0;
  Call read{};
  Call send{};
  Presence on{};
};

/// When a page reads itself again after an action.
enum class Rereads : std::uint8_t { Never, WhenDone, Always };

/// A button that makes the projector do something.
struct ActionRow {
  std::string_view key;
  int caption = 0;
  int control = 0;
  Call call{};
  Rereads rereads = Rereads::Never;
  int list = 0;  ///< List whose position the call takes; 0 for none.
  Entries entries{};
  Presence on{};
  int error = 0;  ///< Text that tells a refusal; 0 for none.
};

/// One of the resets of a page.
struct ResetEntry {
  int text = 0;              ///< Number in the list category.
  PjtOperation operation{};  ///< Without arguments.
  int of = 0;                ///< Control of the row that it resets, without which it is not listed.
};

/// The list of a page's resets and the button that runs the chosen one.
struct ResetRow {
  std::string_view key;
  int list = 0;
  int control = 0;
  std::span<const ResetEntry> entries{};
  Rereads rereads = Rereads::WhenDone;
};

/// A row whose mechanics are its page's own; the table tells its place and what reads it.
struct OwnRow {
  std::string_view key;
  int caption = 0;
  int control = 0;
  std::optional<Call> read{};
  Presence on{};
};

using PageRow = std::variant<ListRow, ValueRow, CheckRow, ActionRow, ResetRow, OwnRow>;

/// What a page shows for a model that its table of models does not list.
enum class Unlisted : std::uint8_t {
  NoRow,
  Template,  ///< The template's rows and lists as they are; nothing is filled or read.
  AllRows,
};

/// All rows of a page, in the order in which they are read.
struct PageTable {
  std::span<const PageRow> rows{};
  /// Which rows a model has, a digit a row; empty where only the rows' own `on` tells.
  std::span<const ModelRows> models{};
  Unlisted unlisted = Unlisted::AllRows;
  bool refusedIsReadBack = false;  ///< A refused value or choice is read again, before it is told.
};

/// Key, and the control by which a row is found in its template.
ADVANCED_CONTROL_EXPORT std::string_view KeyOf(const PageRow& row);
ADVANCED_CONTROL_EXPORT int ControlOf(const PageRow& row);
/// The list beside an action's button, or 0.
ADVANCED_CONTROL_EXPORT int ListBeside(const PageRow& row);

/// The row that is found by a control, which the table must have.
ADVANCED_CONTROL_EXPORT const PageRow& FindRow(const PageTable& table, int control);

/// Whether the page uses the template as it is for this model.
ADVANCED_CONTROL_EXPORT bool KeepsTemplate(const PageTable& table, int modelCode);
/// Whether a model has the row at an index of the table.
ADVANCED_CONTROL_EXPORT bool Has(const PageTable& table, std::size_t row, int modelCode);

/// How a row is read in the model's present state; nothing for one that shows no setting.
ADVANCED_CONTROL_EXPORT std::optional<Call> ReadingOf(const PageRow& row, const ModelData& model);

/// The slider's range for a model, in shown values.
ADVANCED_CONTROL_EXPORT Range SliderRange(const ValueRow& row, const ModelData& model);
/// Where − and + stop, in shown values; `slider` is the slider's range.
ADVANCED_CONTROL_EXPORT Range StepBounds(const ValueRow& row, const ModelData& model, Range slider);
