#include "pages/setup/SetupType5Rows.h"

#include <algorithm>

#include "pages/common/ModelRows.h"
#include "resources/CatalogNumbers.h"

namespace {

// clang-format off
constexpr ModelRows kModelRows[] = {
    //                          Auto Keystone         Audio                 Monitor out
    //                          |Keystone V           RGB1                  RGB1
    //                          ||Keystone H          |Computer1            |Computer1
    //                          |||Whisper            ||RGB2                ||RGB2
    //                          ||||Mirror            |||Computer2          |||Computer2
    //                          |||||Volume           ||||HDMI              ||||HDMI
    //                          ||||||Speaker         |||||Video            |||||Component
    //                          |||||||D-Zoom         ||||||S-Video         ||||||S-Video
    //                          ||||||||D-Shift       |||||||Component      |||||||Video
    //                          |||||||||             ||||||||MIU           ||||||||MIU
    //                          |||||||||             |||||||||HDMI Audio   |||||||||Standby
    //                          |||||||||             ||||||||||            ||||||||||Standby Mode
    {{30, 31, 41, 43, 46, 52}, "111110000             0000000000            00000000000"},
    {{32, 33},                 "110111000             1010011100            00000000000"},
    {{36},                     "110111000             1010011110            00000000000"},
    {{37},                     "110111000             0101011000            00000000000"},
    {{38},                     "110111000             0000000010            00000000000"},
    {{39, 45},                 "110111100             0101011100            00000000000"},
    {{40},                     "110111100             0101011110            00000000000"},
    {{42},                     "111111100             0101111111            00000000000"},
    {{44},                     "010111111             0101011100            00000000000"},
    {{49, 50},                 "110110000             0000000000            01010111011"},
    {{51},                     "111110000             0000000000            10101111010"},
    {{53},                     "110110000             0000000000            01011111011"},
    {{54},                     "111110000             0000000000            10101111110"},
};
// clang-format on

static_assert(AreComplete(kModelRows, kSetupRowCount));

// The lists. Most stand for their positions; the projector has odd numbers for a few inputs.

constexpr SetupListEntry Text(int text, int value) { return {text, nullptr, value}; }
constexpr SetupListEntry Name(const char* name, int value) { return {0, name, value}; }

constexpr int kHdmiInput = 32;
constexpr int kMiuInput = 16;

constexpr SetupListEntry kMirror[] = {
    Text(ListText::MirrorNormal, 0), Text(ListText::MirrorHInverse, 1),
    Text(ListText::MirrorVInverse, 2), Text(ListText::MirrorHVInverse, 3)};
constexpr SetupListEntry kSpeaker[] = {Text(ListText::SwitchOff, 0), Text(ListText::SwitchOn, 1)};
constexpr SetupListEntry kTwoAudios[] = {Text(ListText::Off, 0), Text(ListText::Audio1, 1),
                                         Text(ListText::Audio2, 2)};
constexpr SetupListEntry kThreeAudios[] = {Text(ListText::Off, 0), Text(ListText::Audio1, 1),
                                           Text(ListText::Audio2, 2), Text(ListText::Audio3, 3)};
constexpr SetupListEntry kAudioHdmi[] = {Text(ListText::Off, 0), Text(ListText::Audio1, 1),
                                         Text(ListText::Audio2, 2), Text(ListText::Audio3, 3),
                                         Text(ListText::AudioHDMI, kHdmiInput)};
constexpr SetupListEntry kAudioMiu[] = {Text(ListText::Off, 0), Text(ListText::Audio1, 1),
                                        Text(ListText::Audio2, 2), Text(ListText::Audio3, 3),
                                        Text(ListText::AudioMIU, kMiuInput)};
constexpr SetupListEntry kAudioMiuOf38[] = {Text(ListText::Off, 0), Text(ListText::AudioOnly, 1),
                                            Text(ListText::AudioMIU, kMiuInput)};
constexpr SetupListEntry kHdmiAudio[] = {Name("1", 1), Name("2", 2)};
constexpr SetupListEntry kStandby[] = {Text(ListText::StandbyNormal, 0),
                                       Text(ListText::StandbySaving, 1)};

// Monitor out: 255 is off, 0 the first computer input, 4 the second.
constexpr SetupListEntry kOutOff = Text(ListText::Off, 255);
constexpr SetupListEntry kOutComputer1[] = {kOutOff, Name("Computer1", 0)};
constexpr SetupListEntry kOutComputer2[] = {kOutOff, Name("Computer2", 4)};
constexpr SetupListEntry kOutComputers[] = {kOutOff, Name("Computer1", 0), Name("Computer2", 4)};
constexpr SetupListEntry kOutRgb1[] = {kOutOff, Name("RGB1", 0)};
constexpr SetupListEntry kOutRgb2[] = {kOutOff, Name("RGB2", 4)};
constexpr SetupListEntry kOutRgbs[] = {kOutOff, Name("RGB1", 0), Name("RGB2", 4)};

struct RowList {
  SetupRow row;
  std::span<const SetupListEntry> entries;
  // The list of these models; the other models have `entries`.
  ModelCodes exceptions{};
  std::span<const SetupListEntry> exceptionEntries{};
};

using enum SetupRow;

constexpr RowList kLists[] = {
    {Mirror, kMirror},
    {Speaker, kSpeaker},
    {AudioRGB1, kThreeAudios},
    {AudioComputer1, kThreeAudios, {37}, kTwoAudios},
    {AudioRGB2, kThreeAudios},
    {AudioComputer2, kThreeAudios, {37}, kTwoAudios},
    {AudioHDMI, kAudioHdmi},
    {AudioVideo, kThreeAudios, {37}, kTwoAudios},
    {AudioSVideo, kThreeAudios, {37}, kTwoAudios},
    {AudioComponent, kThreeAudios},
    {AudioMIU, kAudioMiu, {38}, kAudioMiuOf38},
    {HDMIAudio, kHdmiAudio},
    {MonitorOutRGB1, kOutRgbs, {54}, kOutRgb1},
    {MonitorOutComputer1, kOutComputer1},
    {MonitorOutRGB2, kOutRgbs, {54}, kOutRgb2},
    {MonitorOutComputer2, kOutComputer2},
    {MonitorOutHDMI, kOutComputers, {51, 54}, kOutRgbs},
    {MonitorOutComponent, kOutComputers, {51, 54}, kOutRgbs},
    {MonitorOutSVideo, kOutComputers, {51, 54}, kOutRgbs},
    {MonitorOutVideo, kOutComputers, {51, 54}, kOutRgbs},
    {MonitorOutMIU, kOutComputers, {51, 54}, kOutRgbs},
    {MonitorOutStandby, kOutComputers, {51, 54}, kOutRgbs},
    {StandbyMode, kStandby},
};

struct RowReset {
  SetupRow row;
  SetupReset reset;
};

constexpr RowReset kResets[] = {
    {KeystoneV, SetupReset::KeystoneV}, {KeystoneH, SetupReset::KeystoneH},
    {DZoom, SetupReset::DZoom},         {DShift, SetupReset::DShiftV},
    {DShift, SetupReset::DShiftH},
};

}  // namespace

SetupRows SetupRowsOf(int modelCode) {
  const RowSet listed = RowSet::Of(modelCode, kModelRows);
  SetupRows rows;
  for (std::size_t row = 0; row < kSetupRowCount; ++row) {
    if (listed.Has(row)) rows.Add(static_cast<SetupRow>(row));
  }
  return rows;
}

std::span<const SetupListEntry> SetupListOf(SetupRow row, int modelCode) {
  const auto* found = std::ranges::find(kLists, row, &RowList::row);
  if (found == std::end(kLists)) return {};
  return found->exceptions.Contains(modelCode) ? found->exceptionEntries : found->entries;
}

std::vector<SetupReset> SetupResetsOf(const SetupRows& rows) {
  std::vector<SetupReset> resets;
  for (const RowReset& entry : kResets) {
    if (rows.Has(entry.row)) resets.push_back(entry.reset);
  }
  return resets;
}

std::optional<SetupReset> SetupResetAt(const SetupRows& rows, int position) {
  const std::vector<SetupReset> resets = SetupResetsOf(rows);
  if (position < 0 || static_cast<std::size_t>(position) >= resets.size()) return {};
  return resets[static_cast<std::size_t>(position)];
}
