#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "ProjectorSettingsExport.h"
#include "settings/Call.h"
#include "settings/ListEntry.h"
#include "settings/ModelCodes.h"
#include "settings/Range.h"

inline namespace AdvancedControl {

// The kinds of rows that a page's table is made of. A row tells what a setting is called, how it is
// read, sent and stepped, and by which numbered controls a dialog shows it; no widget is needed to
// use it (see RowUse.h). `key` is the setting's stable name, unique within a model; `caption` is
// its number in the caption category of the catalog.
//
//   kind      read  changed          values                     may be sent again later
//   ListRow   yes   SendRow          the entries'               yes, where it is read and sent
//   ValueRow  yes   SendRow, Step    SliderRange, with a bias   yes
//   CheckRow  yes   SendRow          0 and 1                    yes
//   StateRow  yes   SendRow, if it   the entries' texts         no: what the projector does now
//                   is a switch
//   ActionRow       its call         positions of its entries   no
//   ResetRow        its entries      see ResetOf                no
//   PopUpRow        -                -                          no: a button of the page alone

/// What a list shows for a value that it has no entry for.
enum class NoEntry : std::uint8_t {
  Clears,      ///< Nothing is selected.
  Keeps,       ///< The selection stays.
  IsPosition,  ///< The value is taken for the position.
  Ignored,     ///< As if it had not been read: the list's state stays as well.
  IsOrdinal,   ///< The value is taken for the position counted from 1.
};

/// The input source that a setting belongs to, which has a value of its own for each. The source is
/// asked for afresh before the setting is read or changed, once for all rows that are read
/// together.
enum class OfSource : std::uint8_t {
  None,
  /// The current input. While it is unknown a step goes to source 0, and a slider is refused.
  Current,
  /// The source that is heard: the current input, or the standby source of models that have one and
  /// do not run. While it is unknown nothing is changed.
  Playing,
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
  /// Value of a list's last entry that stands for all values without an entry. It is never sent: a
  /// choice of it shows what the projector has.
  PerModel<std::optional<int>> placeholder{};
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
  OfSource of = OfSource::None;

  // The calls, for the source that the row belongs to.
  constexpr std::optional<Call> Reading(int source) const { return For(source, read); }
  constexpr std::optional<Call> Sending(int source) const { return For(source, send); }

 private:
  constexpr std::optional<Call> For(int source, const std::optional<Call>& call) const {
    return call && of != OfSource::None ? At(*call, source) : call;
  }
};

/// Controls of a value row; 0 for one that it does not have.
struct ValueIds {
  int minus = 0, slider = 0, plus = 0, field = 0;
};

/// What follows when the projector refuses a slider's new position.
enum class RefusedDrag : std::uint8_t {
  Told,      ///< The row's text, and the slider goes back to the last value known.
  GoesBack,  ///< Only the latter.
  Empties,   ///< The slider goes back, and the field is emptied.
  Stays,     ///< Nothing: the slider stays, and the field keeps the old value.
};

/// No bounds of − and + on our side.
inline constexpr Range kUnbounded{-0x10000, 0x10000};

/// When a row remembers the device value where it otherwise would the shown one. Deliberate: a
/// slider always remembers its position, and a refused one goes back to what was remembered last.
enum class DeviceMemory : std::uint8_t { Never, OfSteps, OfStepsAndReads };

/// The button that resets one row. The value read then is shown, unless it lies below the row's own
/// range, but not remembered.
struct RowReset {
  int button = 0;
  Call call{};
  Call read{};
};

/// A setting with a number: slider with − and +, or a field with two arrow buttons. Shown values
/// are device values − `bias`. A step is sent only inside the bounds, and the value then read back;
/// a refused one puts the slider back and is told with `error`, unless that is 0.
///
/// Some steppers answer with the new value. Those that take the present one read it first or, by
/// channel, take the shown value remembered; what the latter leave as it was they have refused, and
/// nobody is told.
struct ValueRow {
  static constexpr int kNoRangeText = -1;

  std::string_view key;
  int caption = 0;
  ValueIds ids{};
  std::uint16_t code = 0;  ///< For `Get`, `Set`, `Inc` and `Dec`, unless one is told apart:
  std::optional<Call> read{}, set{}, down{}, up{};
  int bias = 0;
  int rangeText = kNoRangeText;  ///< `RangeIndex` of the model's own slider range.
  PerModel<Range> range{};       ///< Shown values; of the slider where there is no text.
  /// There is no setter: only − and + change it, and only the projector bounds it unless `bounds`
  /// does. Such a row has no slider.
  bool stepsOnly = false;
  std::optional<PerModel<Range>> bounds{};  ///< Shown values, of − and +; else the slider's range.
  int ticks = 1;                            ///< 0 is an eighth of the slider's maximum.
  std::optional<int> initial{};  ///< Shown and taken for the last value known until there is one.
  RefusedDrag refusedDrag = RefusedDrag::Told;
  int error = 0;
  bool greysField = false;         ///< A failed read takes the field out of use as well.
  bool failedReadDisables = true;  ///< Else it only empties the field.
  DeviceMemory deviceMemory = DeviceMemory::Never;
  OfSource of = OfSource::None;
  /// The projector keeps it for each input source, but gives and takes only that of the present
  /// one.
  bool ofCurrentSourceOnly = false;
  RowReset reset{};
  Presence on{};

  // The calls, for the source that the row belongs to.
  constexpr Call Reading(int source = 0) const { return For(source, read.value_or(Get(code))); }
  constexpr Call Setting(int source = 0) const { return For(source, set.value_or(Set(code))); }
  constexpr Call Stepping(bool upwards, int source = 0) const {
    return For(source, upwards ? up.value_or(Inc(code)) : down.value_or(Dec(code)));
  }
  /// The control by which the row is found.
  constexpr int Control() const { return ids.slider != 0 ? ids.slider : ids.field; }

 private:
  constexpr Call For(int source, const Call& call) const {
    return of == OfSource::None ? call : At(call, source);
  }
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

/// A state of the projector, shown as a text.
struct StateRow {
  std::string_view key;
  int caption = 0;
  int control = 0;
  Call read{};
  Entries texts{};
  int otherwise = 0;  ///< Text of any other value, which is its insert; 0 for an empty one.
  int frame = 0;      ///< Text that the state's own is put into; 0 for none.
  std::optional<Call> turnOff{}, turnOn{};  ///< Of a state that is a switch.
  Presence on{};
};

/// When a page reads itself again after an action.
enum class Rereads : std::uint8_t {
  Never,
  WhenDone,
  Always,
  /// When done, only the value row that was reset, which does not remember what it shows then.
  ItsRow,
};

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

/// A button that opens a pop-up, which its page does.
struct PopUpRow {
  std::string_view key;
  int caption = 0;
  int control = 0;
  Presence on{};
};

using PageRow = std::variant<ListRow, ValueRow, CheckRow, StateRow, ActionRow, ResetRow, PopUpRow>;

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
  bool captionsStay = false;       ///< The caption of a row that cannot be read does not grey.
};

/// Key, number of the caption, or 0 where the key is all that there is, and the control by which a
/// row is found in its template.
PROJECTOR_SETTINGS_EXPORT std::string_view KeyOf(const PageRow& row);
PROJECTOR_SETTINGS_EXPORT int CaptionOf(const PageRow& row);
PROJECTOR_SETTINGS_EXPORT int ControlOf(const PageRow& row);
/// The controls that show a row's value and change it, buttons of resets apart.
PROJECTOR_SETTINGS_EXPORT std::vector<int> ControlsOf(const PageRow& row);
/// The list beside an action's button, or 0.
PROJECTOR_SETTINGS_EXPORT int ListBeside(const PageRow& row);

/// The row that is found by a control, which the table must have.
PROJECTOR_SETTINGS_EXPORT const PageRow& FindRow(const PageTable& table, int control);

/// Whether the page uses the template as it is for this model.
PROJECTOR_SETTINGS_EXPORT bool KeepsTemplate(const PageTable& table, int modelCode);
/// Whether a model has the row at an index of the table.
PROJECTOR_SETTINGS_EXPORT bool Has(const PageTable& table, std::size_t row, int modelCode);

/// How a row is read in the model's present state; nothing for one that shows no setting. For a row
/// of an input source the source is still to be told: `ReadRow` asks for it.
PROJECTOR_SETTINGS_EXPORT std::optional<Call> ReadingOf(const PageRow& row, const ModelData& model);

/// The input source that a row belongs to.
PROJECTOR_SETTINGS_EXPORT OfSource SourceOf(const PageRow& row);
/// How a row of the table is reset by itself; nothing for one that has no reset of its own.
PROJECTOR_SETTINGS_EXPORT std::optional<Call> ResetOf(const PageTable& table, const PageRow& row);

/// The slider's range for a model, in shown values.
PROJECTOR_SETTINGS_EXPORT Range SliderRange(const ValueRow& row, const ModelData& model);
/// Where − and + stop, in shown values; `kUnbounded` where only the projector tells.
PROJECTOR_SETTINGS_EXPORT Range StepBounds(const ValueRow& row, const ModelData& model);

}  // namespace AdvancedControl
