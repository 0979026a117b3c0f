// Compares what the simulated projectors of each page set do at each command of each setting with a
// file. After an intended change, rewrite it with UPDATE_LISTING=1 and review the differences.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "simulator/SimulatedProjector.h"
#include "tests/device/Replies.h"

namespace {

constexpr const char* kListing = TEST_SOURCE_DIR "/simulator/Settings.txt";
constexpr int kLowest = -130, kHighest = 1010;  // more than any range that is not a word

/// A new projector of a page set with one of its settings.
class OneSetting {
 public:
  OneSetting(int pageSet, SettingId id) : projector_({.pageSet = pageSet}), id_(id) {}

  /// What the operation does, whose argument names one of several.
  std::string Does(const PjtCommand& command, Verb verb) {
    const bool isSecond = FormOf(command.operation).second == Argument::Value;
    switch (verb) {
      case Verb::Read:
        return ' ' + Replies(projector_, {command});
      case Verb::Write:
        return Takes([&](int value) {
          PjtCommand with = command;
          (isSecond ? with.second : with.first) = static_cast<std::int16_t>(value);
          return with;
        });
      case Verb::StepUp:
      case Verb::StepDown: {
        const int limit = kHighest - kLowest;
        for (int i = 0; i < limit && IsAccepted(command); ++i) continue;
        return " to " + std::to_string(Kept());
      }
      default:
        projector_.SetValue(id_, Kept() + 1, kSource);
        return IsAccepted(command) ? ' ' + std::to_string(Kept()) : " -";
    }
  }

 private:
  static constexpr int kSource = 0;

  int Kept() const { return projector_.Value(id_, kSource); }
  bool IsAccepted(const PjtCommand& command) {
    return projector_.Execute(command).result == AcceptedResult(command.operation);
  }

  /// The values that are taken, and what is kept if that is something else: " 1..3 as 0".
  std::string Takes(const std::function<PjtCommand(int)>& with) {
    std::ostringstream text;
    int first = 0, next = kLowest, shift = 0;
    const auto end = [&] {
      if (next == kLowest) return;
      text << ' ' << first;
      if (next > first + 1) text << ".." << next - 1;
      if (shift != 0) text << " as " << first + shift;
    };
    for (int value = kLowest; value < kHighest; ++value) {
      if (!IsAccepted(with(value))) continue;
      if (value != next || Kept() != value + shift) {
        end();
        first = value;
        shift = Kept() - value;
      }
      next = value + 1;
    }
    end();
    return next == kLowest ? " nothing" : text.str();
  }

  SimulatedProjector projector_;
  const SettingId id_;
};

std::string Describe(int pageSet, const Setting& setting) {
  std::ostringstream text;
  const auto add = [&](const PjtCommand& command, Verb verb) {
    OneSetting one(pageSet, setting.id);
    text << "; " << OperationName(command.operation) << one.Does(command, verb);
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
    const SimulatedProjector projector({.pageSet = pageSet});
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
      if (isPlain) others << ' ' << std::hex << code;
    }
    add("Codes without a meaning:" + others.str(), pageSet);
  }
  std::ranges::sort(found);
  std::ostringstream now, before;
  for (const auto& [does, sets] : found) now << does << " (" << sets.substr(1) << ")\n";
  before << std::ifstream(kListing).rdbuf();
  if (std::getenv("UPDATE_LISTING")) std::ofstream(kListing) << now.str();
  EXPECT_EQ(before.str(), now.str());
}

}  // namespace
