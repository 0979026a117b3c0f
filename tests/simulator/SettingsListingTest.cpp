// Compares what the simulated projectors of each page set do at each command of each setting with a
// file. After an intended change, rewrite it with UPDATE_LISTING=1 and review the differences.

#include <map>
#include <set>
#include <utility>

#include "simulator/SimulatedProjector.h"
#include "tests/device/Replies.h"
#include "tests/support/Record.h"

namespace {

constexpr const char* kListing = TEST_SOURCE_DIR "/simulator/Settings.txt";
constexpr int kLowest = -130, kHighest = 1010;  // what is accepted at the end is followed further

/// What a command does to a setting of a new projector: the reply, the last value to which it
/// steps, the values that it takes with what is kept of them (" 1..3 as 0"), or the value
/// afterwards.
std::string Does(int pageSet, SettingId id, PjtCommand command, Verb verb) {
  SimulatedProjector projector({.pageSet = pageSet, .ranges = {}});
  const auto kept = [&] { return projector.Value(id, 0); };
  const auto isAccepted = [&] {
    return projector.Execute(command).result == AcceptedResult(command.operation);
  };
  if (verb == Verb::StepUp || verb == Verb::StepDown) {
    while (isAccepted()) continue;
    return " to " + std::to_string(kept());
  }
  if (verb != Verb::Write) {
    const std::string before = verb == Verb::Read ? Replies(projector, {command}) + ' ' : "";
    projector.SetValue(id, kept() + 1, 0);
    const std::string reply = before + Replies(projector, {command});
    return ' ' + reply + (verb == Verb::Read ? "" : " is " + std::to_string(kept()));
  }
  const bool isSecond = FormOf(command.operation).second == Argument::Value;
  std::ostringstream text;
  int first = 0, next = kLowest, shift = 0;
  const auto end = [&] {
    if (next == kLowest) return;
    const auto range = [&](int by) {
      text << ' ' << first + by;
      if (next > first + 1) text << ".." << next - 1 + by;
    };
    text << (text.str().empty() ? "" : ",");
    range(0);
    if (shift != 0) text << " as", range(shift);
  };
  for (int value = kLowest; value < kHighest || (value == next && value <= 0xFFFF); ++value) {
    (isSecond ? command.second : command.first) = static_cast<std::int16_t>(value);
    if (!isAccepted()) continue;
    if (value != next || kept() != value + shift) {
      end();
      first = value;
      shift = kept() - value;
    }
    next = value + 1;
  }
  end();
  return next == kLowest ? " nothing" : text.str();
}

/// "Get 0x2003:", or with the point, channel or input that it names: "GetUserGammaPoint(3):".
std::string NameOf(const PjtCommand& command) {
  std::ostringstream text;
  text << OperationName(command.operation);
  if (command.code != 0) text << " 0x" << std::hex << command.code;
  if (command.first != 0) text << '(' << command.first << ')';
  return text.str() + ':';
}

std::string Describe(int pageSet, const Setting& setting) {
  std::ostringstream text;
  const auto add = [&](const PjtCommand& command, Verb verb) {
    text << "; " << NameOf(command) << Does(pageSet, setting.id, command, verb);
  };
  if (setting.code != 0) {
    add(Get(setting.code), Verb::Read);
    add(Set(setting.code, 0), Verb::Write);
    add(Inc(setting.code), Verb::StepUp);
  }
  for (const Binding& binding : setting.operations) {
    const bool isAny = binding.selector == Binding::kAny;
    if (binding.verb == Verb::None) continue;
    add({.operation = binding.operation,
         .first = static_cast<std::int16_t>(isAny ? 0 : binding.selector)},
        binding.verb);
  }
  return text.str();
}

TEST(SettingsListing, IsWhatTheProjectorsDo) {
  std::vector<std::pair<std::string, std::string>> found;  // what is done, and the page sets
  std::map<const Setting*, std::string> described;
  const auto add = [&](const std::string& does, int pageSet) {
    auto same = std::ranges::find(found, does, &std::pair<std::string, std::string>::first);
    if (same == found.end()) same = found.insert(found.end(), {does, ""});
    same->second += ' ' + std::to_string(pageSet);
  };
  for (const int pageSet : {1, 2, 3, 4, 5}) {
    const SimulatedProjector projector({.pageSet = pageSet, .ranges = {}});
    std::set<int> codes;
    for (const SettingId id : projector.Settings()) {
      const Setting& setting = *projector.Describe(id);
      codes.insert(setting.code);
      std::string& text = described[&setting];
      if (text.empty()) text = std::string(setting.name) + Describe(pageSet, setting);
      add(text, pageSet);
    }
    std::ostringstream others;
    for (int code = 0; code < 0x10000; ++code) {
      const bool isPlain =
          projector.CodeValue(static_cast<std::uint16_t>(code)) && !codes.contains(code);
      if (isPlain) others << " 0x" << std::hex << code;
    }
    add("Codes without a meaning:" + others.str(), pageSet);
  }
  std::ranges::sort(found);
  std::ostringstream now;
  now << "# What each command does to a setting, and in brackets the page sets that have it so.\n";
  for (const auto& [does, sets] : found) now << does << " (" << sets.substr(1) << ")\n";
  ExpectRecord(kListing, now.str());
}

}  // namespace
