#pragma once

#include <string_view>

#include "Namespace.h"
#include "settings/LegacyRows.h"
#include "settings/RowParts.h"

namespace AdvancedControl {

/// Rows that several main, automatic, option and other pages have. They are read and sent in the
/// same way on all pages, but each page has its own keys and controls.
namespace shared {

using Op = PjtOperation;

inline constexpr auto kMenuColors = Numbered(ListText::BlankBlue, ListText::BlankBlack,
                                             ListText::MenuColorGray, ListText::MenuColorGreen);
inline constexpr auto kRemoteIds = Numbered(ListText::AllRemoteIds, "1", "2", "3", "4");
inline constexpr auto kLanguages = [] {
  std::array<ListEntry, 17> languages;
  for (int i = 0; i < std::ssize(languages); ++i) {
    languages[static_cast<std::size_t>(i)] = {ListText::LanguageBase + i, i};
  }
  return languages;
}();

constexpr ValueRow Brightness(std::string_view key, const ValueIds& ids) {
  return CentredSlider(key, 73, ids, CommandCode::Brightness, ErrorText::BrightnessRefused,
                       RangeIndex::Brightness);
}
constexpr ValueRow Contrast(std::string_view key, const ValueIds& ids) {
  return CentredSlider(key, 74, ids, CommandCode::Contrast, ErrorText::ContrastRefused,
                       RangeIndex::Contrast);
}
constexpr ValueRow Volume(std::string_view key, const ValueIds& ids) {
  ValueRow row = PlainSlider(key, 1, ids, CommandCode::Volume, ErrorText::VolumeRefused,
                             RangeIndex::Volume, {0, 32}, 4);
  row.ofCurrentSourceOnly = true;
  return row;
}
/// Minutes; 0 is off.
constexpr ValueRow AutoOff(std::string_view key, const ValueIds& ids) {
  ValueRow row = PlainSlider(key, 4210, ids, CommandCode::AutoPowerOff, ErrorText::AutoOffRefused,
                             RangeIndex::AutoOff, {0, 99}, 5);
  row.down = Named(Op::DecrementAutoPowerOff);
  row.up = Named(Op::IncrementAutoPowerOff);
  return row;
}

/// A list whose setter has no result, so that every choice is read back.
constexpr ListRow Silent(std::string_view key, int caption, int list, Entries entries,
                         std::uint16_t code, Op set) {
  return {key, caption, list, entries, Get(code), Named(set), {.readsBackAlways = true}};
}
constexpr ListRow Aspect(std::string_view key, int list) {
  return {key,
          46,
          list,
          AspectEntries,
          Get(CommandCode::Aspect),
          Named(Op::SetAspect),
          {.sendsPosition = true, .emptyIsNotRead = true, .readsBackAlways = true}};
}
constexpr ListRow Whisper(std::string_view key, int list) {
  return {key,
          75,
          list,
          WhisperEntries,
          Get(CommandCode::Whisper),
          Named(Op::SetWhisper),
          {.refused = Refused::ReadsBack, .emptyIsNotRead = true}};
}
constexpr ListRow Mirror(std::string_view key, int list) {
  return {key, 40, list, kMirrors, Named(Op::GetMirror), Named(Op::SetMirror), kReadBack};
}
constexpr ListRow AutoSearch(std::string_view key, int list) {
  return ListRow{
      key, 16, list, kSwitch, Get(CommandCode::AutoSearch), Named(Op::SetAutoSearch), kReadBack};
}
constexpr ListRow AutoOn(std::string_view key, int list) {
  return ListRow{
      key, 93, list, kSwitch, Get(CommandCode::AutoPowerOn), Named(Op::SetAutoPowerOn), kReadBack};
}
constexpr ListRow Stereo(std::string_view key, int list) {
  return Silent(key, 78, list, kSwitch, CommandCode::Stereo, Op::SetStereo);
}
constexpr ListRow Language(std::string_view key, int list) {
  return Silent(key, 76, list, kLanguages, CommandCode::Language, Op::SetLanguage);
}
constexpr ListRow MenuColor(std::string_view key, int list) {
  return Silent(key, 4207, list, kMenuColors, CommandCode::MenuColor, Op::SetMenuColor);
}
constexpr ListRow OneTouch(std::string_view key, int list) {
  return Silent(key, 4208, list, kSwitch, CommandCode::OneTouch, Op::SetOneTouch);
}
constexpr ListRow IpRemoteId(std::string_view key, int list) {
  return Silent(key, 4209, list, kRemoteIds, CommandCode::IpRemoteId, Op::SetIPRemoteID);
}
constexpr ActionRow AutoAdjust(std::string_view key, int button, Rereads rereads = Rereads::Never) {
  return {.key = key,
          .caption = 1013,
          .control = button,
          .call = Named(Op::ExecAutoAdjust),
          .rereads = rereads,
          .error = ErrorText::AutoAdjustRefused};
}

// Rows of the "other" pages.
/// Running states; any other is standby.
inline constexpr int kRunning = 1;
inline constexpr int kCoolingDown = 2;
inline constexpr ListEntry kPowers[] = {{ListText::On, kRunning},
                                        {ListText::PowerCoolingDown, kCoolingDown}};
/// Whether the projector is running, and the commands of the buttons beside it. The page handles
/// the buttons.
constexpr StateRow Power(int label) {
  return {.key = "other.power",
          .caption = 4200,
          .control = label,
          .read = Get(CommandCode::RunningState),
          .texts = kPowers,
          .otherwise = ListText::Off,
          .turnOff = Named(Op::SetPowerOff),
          .turnOn = Named(Op::SetPowerOn)};
}
constexpr ListRow InputSource(int list) {
  return {"other.input-source",
          146,
          list,
          SourceEntries,
          Get(CommandCode::InputSource),
          Set(CommandCode::InputSource),
          {.refused = Refused::ReadsBack,
           .error = ErrorText::InputSourceRefused,
           .emptyIsNotRead = true}};
}
constexpr ListRow Blank(int list) {
  return Silent("other.blank", 148, list, kSwitch, CommandCode::BlankState, Op::SetBlank);
}
constexpr ListRow Mute(int list) {
  return Silent("other.mute", 149, list, kSwitch, CommandCode::Mute, Op::SetMute);
}
constexpr ListRow Freeze(int list) {
  return Silent("other.freeze", 150, list, kSwitch, CommandCode::Freeze, Op::SetFreeze);
}

}  // namespace shared

}  // namespace AdvancedControl
