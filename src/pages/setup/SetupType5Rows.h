#pragma once

#include <bitset>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// What a model has of the newest page set's setup page, as data.

/// The rows that depend on the model.
enum class SetupRow {
  AutoKeystone,
  KeystoneV,
  KeystoneH,
  Whisper,
  Mirror,
  Volume,
  Speaker,
  DZoom,
  DShift,
  AudioRGB1,
  AudioComputer1,
  AudioRGB2,
  AudioComputer2,
  AudioHDMI,
  AudioVideo,
  AudioSVideo,
  AudioComponent,
  AudioMIU,
  HDMIAudio,
  MonitorOutRGB1,
  MonitorOutComputer1,
  MonitorOutRGB2,
  MonitorOutComputer2,
  MonitorOutHDMI,
  MonitorOutComponent,
  MonitorOutSVideo,
  MonitorOutVideo,
  MonitorOutMIU,
  MonitorOutStandby,
  StandbyMode,
};
inline constexpr std::size_t kSetupRowCount = 30;

/// Which rows there are.
class SetupRows {
 public:
  bool Has(SetupRow row) const { return bits_[static_cast<std::size_t>(row)]; }
  void Add(SetupRow row) { bits_.set(static_cast<std::size_t>(row)); }

 private:
  std::bitset<kSetupRowCount> bits_;
};

/// The rows of a model; none for a code that is not listed.
SetupRows SetupRowsOf(int modelCode);

/// An entry of a list and the device value that it stands for.
struct SetupListEntry {
  int text;          ///< Number in the list category, or 0 where `name` is the text.
  const char* name;  ///< A text that is the same in every language, or null.
  int value;
};

/// The fixed list of a row for this model; empty for rows that have no list or take it from the
/// model data.
std::span<const SetupListEntry> SetupListOf(SetupRow row, int modelCode);

/// Entries of the reset list.
enum class SetupReset { KeystoneV, KeystoneH, DZoom, DShiftV, DShiftH };

/// The resets that go with the rows, in list order.
std::vector<SetupReset> SetupResetsOf(const SetupRows& rows);

/// The reset behind a position of the list; nothing for a position outside it.
std::optional<SetupReset> SetupResetAt(const SetupRows& rows, int position);
