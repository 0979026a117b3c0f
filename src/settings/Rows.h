#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "settings/Call.h"
#include "settings/ListEntry.h"
#include "settings/ModelCodes.h"
#include "settings/Range.h"

namespace AdvancedControl {

// The kinds of rows in a page's table. A row says what a setting is called, how it is read, sent
// and stepped, and which numbered controls of a dialog show it. It can be used without widgets (see
// RowUse.h). `key` is the setting's stable name, unique within a model; `caption` is its number in
// the caption category of the catalog. Rows do not change; the functions may be called from any
// thread.
//
//   kind      read  changed          values                     may be sent again later
//   ListRow   yes   SendRow          the entries'               yes, if it is read and sent
//   ValueRow  yes   SendRow, Step    SliderRange, with a bias   yes
//   CheckRow  yes   SendRow          0 and 1                    yes
//   StateRow  yes   SendRow, if it   the entries' texts         no: what the projector does now
//                   is a switch
//   ActionRow       its call         positions of its entries   no
//   ResetRow        its entries      see ResetOf                no
//   PopUpRow        -                -                          no: a button of the page alone

/// What a list shows for a value without an entry.
enum class NoEntry : std::uint8_t {
  Clears,      ///< Nothing is selected.
  Keeps,       ///< The selection stays.
  IsPosition,  ///< The value is used as the position.
  Ignored,     ///< Nothing changes: neither the selection nor whether the list is enabled.
  IsOrdinal,   ///< The value is used as the position, counted from 1.
};

/// The input source that a setting belongs to, if it has a value for each source. The source is
/// read again before the setting is read or changed, once for all rows that are read together.
enum class OfSource : std::uint8_t {
  None,
  /// The current input. If it is unknown, steps use source 0, and moving a slider is refused.
  Current,
  /// The source that is heard: the current input, or the standby source if the model has one and is
  /// not running. If it is unknown, nothing is changed.
  Playing,
};

/// What happens when the projector refuses a choice.
enum class Refused : std::uint8_t {
  Silent,             ///< Nothing; the list keeps the choice until the next refresh.
  ReadsBack,          ///< The value is read and shown.
  ReadsBackPosition,  ///< The same, but the value read is used as the position.
};

/// How a list may differ from a plain one, in which each entry sends its value.
struct ListRules {
  bool sendsPosition = false;  ///< An entry sends its position.
  NoEntry noEntry = NoEntry::Clears;
  Refused refused = Refused::Silent;
  int error = 0;  ///< Text shown for a refusal; 0 for none.
  bool failedReadDisables = true;
  bool emptyIsNotRead = false;  ///< A list without entries is disabled and not read.
  bool sendsText = false;       ///< The connection first gets the chosen entry's text.
  /// After every choice the setting is read as in a refresh, because the setter has no result that
  /// would say whether the projector accepted it.
  bool readsBackAlways = false;
  /// Value of the last entry if that stands for all values without an entry. It is never sent:
  /// choosing it shows the projector's value.
  PerModel<std::optional<int>> placeholder{};
};

/// A setting with a list of values.
struct ListRow {
  std::string_view key;
  int caption = 0;
  int control = 0;
  Entries entries{};
  std::optional<Call> read{};  ///< If missing, the list is disabled.
  std::optional<Call> send{};  ///< If missing, the list is shown but a choice is not sent.
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

/// Controls of a value row. A row that is `stepsOnly` has no slider.
struct ValueIds {
  int minus = 0, slider = 0, plus = 0, field = 0;
};

/// What happens when the projector refuses a slider's new position.
enum class RefusedDrag : std::uint8_t {
  ShowsError,  ///< The row's error is shown and the slider returns to the last known value.
  GoesBack,    ///< The slider returns to the last known value.
  Empties,     ///< The slider returns to it and the field is emptied.
  Stays,       ///< Nothing: the slider stays, and the field keeps the old value.
};

/// No limits for − and + except the projector's.
inline constexpr Range kUnbounded{-0x10000, 0x10000};

/// When a row remembers the device value instead of the shown value. After a refusal the slider
/// moves to the remembered value. That it may be a device value there is deliberate; a drag always
/// remembers the shown value.
enum class DeviceMemory : std::uint8_t { Never, OfSteps, OfStepsAndReads };

/// The button that resets one row. The value read afterwards is shown, unless it is below the row's
/// range, but not remembered.
struct RowReset {
  int button = 0;
  Call call{};
  Call read{};
};

/// `ValueRow::rangeText` of a row for which hosts give no range.
inline constexpr int kNoRangeText = -1;

/// A setting with a number: a slider with − and +, or a field with two arrow buttons. Shown values
/// are device values − `bias`. A step is sent only within the bounds, and the value is read back
/// afterwards. If a step is refused, the slider returns and `error` is shown, unless that is 0.
///
/// Some steppers answer with the new value. Some need the present value: those that address a
/// channel use the remembered shown value, the others read it first. If a stepper that addresses a
/// channel leaves the value unchanged, the step was refused, and no error is shown.
struct ValueRow {
  std::string_view key;
  int caption = 0;
  ValueIds ids{};
  std::uint16_t code = 0;  ///< For `Get`, `Set`, `Inc` and `Dec`, except those given here:
  std::optional<Call> read{}, set{}, down{}, up{};
  int bias = 0;
  int rangeText = kNoRangeText;  ///< `RangeIndex` of the model's own slider range.
  PerModel<Range> range{};       ///< Shown values; the slider's range if there is no text.
  /// There is no setter: only − and + change it. Without `bounds`, only the projector limits it.
  /// Such a row has no slider.
  bool stepsOnly = false;
  std::optional<PerModel<Range>> bounds{};  ///< Shown values, for − and +; else the slider's.
  int ticks = 1;                            ///< 0 means an eighth of the slider's maximum.
  int unit = 0;                  ///< Text of the list category shown behind the number; 0 for none.
  std::optional<int> initial{};  ///< Shown, and used as the last known value, until one is read.
  RefusedDrag refusedDrag = RefusedDrag::ShowsError;
  int error = 0;
  bool greysField = false;         ///< A failed read disables the field as well.
  bool failedReadDisables = true;  ///< Otherwise it only empties the field.
  DeviceMemory deviceMemory = DeviceMemory::Never;
  OfSource of = OfSource::None;
  /// The projector keeps it for each input source, but only the present source's value can be read
  /// and changed.
  bool ofCurrentSourceOnly = false;
  std::optional<RowReset> reset{};
  Presence on{};

  // The calls, for the source that the row belongs to.
  constexpr Call Reading(int source = 0) const { return For(source, read.value_or(Get(code))); }
  constexpr Call Setting(int source = 0) const { return For(source, set.value_or(Set(code))); }
  constexpr Call Stepping(bool upwards, int source = 0) const {
    return For(source, upwards ? up.value_or(Inc(code)) : down.value_or(Dec(code)));
  }
  /// The control by which the row is found.
  constexpr int Control() const { return stepsOnly ? ids.field : ids.slider; }

 private:
  constexpr Call For(int source, const Call& call) const {
    return of == OfSource::None ? call : At(call, source);
  }
};

/// A switch with a check box. After a refused change the setting is read back.
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
  int otherwise = 0;  ///< Text for other values, with the value as its insert; 0 for an empty text.
  int frame = 0;      ///< Text into which the state's text is inserted; 0 for none.
  std::optional<Call> turnOff{}, turnOn{};  ///< Both or neither; for a state that is a switch.
  Presence on{};
};

/// When a page is read again after an action.
enum class Rereads : std::uint8_t {
  Never,
  WhenDone,
  Always,
  /// After success, only the value row that was reset. It shows the value without remembering it.
  ItsRow,
};

/// The list beside an action's button. The action sends the position of the chosen entry.
struct ActionList {
  int control = 0;
  Entries entries{};
};

/// A button that makes the projector do something.
struct ActionRow {
  std::string_view key;
  int caption = 0;
  int control = 0;
  Call call{};
  Rereads rereads = Rereads::Never;
  std::optional<ActionList> list{};
  Presence on{};
  int error = 0;  ///< Text shown for a refusal; 0 for none.
  int done =
      0;  ///< Text of the list category for a success, plus the position; 0 for a general one.
};

/// One of the resets of a page.
struct ResetEntry {
  int text = 0;              ///< Number in the list category.
  PjtOperation operation{};  ///< Without arguments.
  std::optional<int> of{};   ///< Control of the row that it resets; listed only with that row.
};

/// The list of a page's resets and the button that runs the chosen one.
struct ResetRow {
  std::string_view key;
  int list = 0;
  int control = 0;
  std::span<const ResetEntry> entries{};
  Rereads rereads = Rereads::WhenDone;
};

/// A button that opens a pop-up; the page handles it.
struct PopUpRow {
  std::string_view key;
  int caption = 0;
  int control = 0;
  Presence on{};
};

using PageRow = std::variant<ListRow, ValueRow, CheckRow, StateRow, ActionRow, ResetRow, PopUpRow>;

/// What a page shows for a model that is missing in its table of models.
enum class Unlisted : std::uint8_t {
  NoRow,
  Template,  ///< The template's rows and lists unchanged; nothing is filled or read.
  AllRows,
};

/// All rows of a page, in the order in which they are read.
struct PageTable {
  std::span<const PageRow> rows{};
  /// Which rows a model has, one digit per row; empty if only the rows' own `on` decides.
  std::span<const ModelRows> models{};
  Unlisted unlisted = Unlisted::AllRows;
  bool refusedIsReadBack = false;  ///< A refused value is read back before the error is shown.
  bool captionsStay = false;       ///< The caption of a row that cannot be read is not greyed.
};

/// The row's key, the number of its caption (0 if it only has a key), and the control by which it
/// is found in its template.
PROJECTOR_SETTINGS_EXPORT std::string_view KeyOf(const PageRow& row);
PROJECTOR_SETTINGS_EXPORT int CaptionOf(const PageRow& row);
PROJECTOR_SETTINGS_EXPORT int ControlOf(const PageRow& row);
/// The controls that show and change a row's value, without the buttons of resets.
PROJECTOR_SETTINGS_EXPORT std::vector<int> ControlsOf(const PageRow& row);

/// The row with this control, which the table must have.
PROJECTOR_SETTINGS_EXPORT const PageRow& FindRow(const PageTable& table, int control);

/// Whether the page uses the template as it is for this model.
PROJECTOR_SETTINGS_EXPORT bool KeepsTemplate(const PageTable& table, int modelCode);
/// Whether a model has the row at an index of the table.
PROJECTOR_SETTINGS_EXPORT bool Has(const PageTable& table, std::size_t row, int modelCode);

/// How a row is read on this model; nothing for a row that shows no setting. For a row that belongs
/// to an input source the result lacks the source, which `ReadRow` adds.
PROJECTOR_SETTINGS_EXPORT std::optional<Call> ReadingOf(const PageRow& row, const ModelData& model);

/// The input source that a row belongs to.
PROJECTOR_SETTINGS_EXPORT OfSource SourceOf(const PageRow& row);
/// How a single row of the table is reset; nothing if it cannot be reset alone.
PROJECTOR_SETTINGS_EXPORT std::optional<Call> ResetOf(const PageTable& table, const PageRow& row);

/// The slider's range for a model, in shown values.
PROJECTOR_SETTINGS_EXPORT Range SliderRange(const ValueRow& row, const ModelData& model);
/// Where − and + stop, in shown values; `kUnbounded` if only the projector limits them.
PROJECTOR_SETTINGS_EXPORT Range StepBounds(const ValueRow& row, const ModelData& model);

}  // namespace AdvancedControl
