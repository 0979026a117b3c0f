// The file of a snapshot, what is typed for its settings, and asking patiently.

#include <array>
#include <gmock/gmock.h>
#include <thread>

#include <gtest/gtest.h>

#include "tests/snapshots/DisturbedProjector.h"

namespace {

/// Answers each command after its time, unless it is given up before.
struct Late : ProjectorChannel {
  PjtReply Execute(const PjtCommand&) override {
    const auto time = std::chrono::milliseconds(times[std::min(count++, times.size() - 1)]);
    std::this_thread::sleep_for(std::min(time, longest));
    waited += std::min(time, longest);
    return {.answered = time <= longest};
  }
  void GiveUpAfter(std::chrono::milliseconds time) override { longest = time; }

  std::vector<int> times;
  std::size_t count = 0;
  std::chrono::milliseconds longest{}, waited{};
};

TEST(PatientChannel, AsksAgainWithinOneTimeOut) {
  constexpr std::chrono::milliseconds kTimeOut{300};
  const std::pair<std::vector<int>, bool> kCases[] = {
      {{1, 1000, 1}, true}, {{1, 1000, 1000, 1}, true}, {{200, 280}, true}, {{1, 1000}, false}};
  for (const auto& [times, isAnswered] : kCases) {
    const auto late = std::make_shared<Late>();
    late->times = times;
    PatientChannel patient(late, kTimeOut);
    EXPECT_TRUE(patient.Execute({.operation = PjtOperation::GetInputSource}).answered);
    late->waited = {};
    EXPECT_EQ(patient.Execute({.operation = PjtOperation::GetInputSource}).answered, isAnswered);
    EXPECT_EQ(patient.IsGone(), !isAnswered);
    EXPECT_LE(late->waited, kTimeOut);
  }
}

TEST(Snapshot, IsReadAsWrittenAndRefusedWhenWrong) {
  Room room(Profiles().front());
  const Snapshot snapshot = room.Take();
  const QByteArray text = WriteSnapshot(snapshot);
  EXPECT_EQ(ReadSnapshot(text).snapshot, snapshot);
  for (const auto& [from, to, error] : std::vector<std::array<const char*, 3>>{
           {"\"format\"", "\"formal\"", "no file of saved settings"},
           {"\"version\": 1", "\"version\": 2", "only version 1"},
           {"\"value\": ", "\"value\": 0.5, \"x\": ", "settings[0].value: must be a whole"},
           {"\"value\": ", "\"value\": 1e9, \"x\": ", "settings[0].value: must be a whole"},
           {"\"settings\": [", "\"settings\": [1,", "settings[0]: must be an object"},
           {"\"settings\"", "\"settingz\"", "settings: must be an array"},
           {"\"settings\"", "\"beforehand\": 1, \"settings\"", "beforehand: must be an array"},
           {"\"key\": \"", "\"kez\": \"", "settings[0].key: must be a line"},
           {"\"model\": {", "\"model\": {]", "line 3: "}}) {
    QByteArray wrong = text;
    wrong.replace(wrong.indexOf(from), static_cast<int>(strlen(from)), to);
    EXPECT_THAT(ReadSnapshot(wrong).error.toStdString(), testing::HasSubstr(error));
  }
}

TEST(SettingTexts, UnderstandsWhatPeopleType) {
  const Room room(Profile("Projector 5-30"));
  struct Typed {
    const char* text;
    std::optional<int> value;  // from the present value `from`
    int from = 0;
  };
  const std::pair<const char*, std::vector<Typed>> kCases[] = {
      {"picture.brightness",
       {{"5", 133}, {"=-31", 97}, {"32", {}}, {"", {}}, {"5x", {}}, {"99999999999", {}}}},
      {"picture.brightness", {{"+3", 131, 128}, {"-3", 125, 128}, {"+1", {}, 159}}},
      {"picture.sharpness", {{"4", 128}}},
      {"picture.active-iris",
       {{"theater", 16}, {"影院", 16}, {"17", 17}, {"1", {}}, {"+1", 16, 0}, {"+1", {}, 17}}},
      {"setup.mirror", {{"H&V Inverse", 3}}},
  };
  for (const auto& [key, cases] : kCases) {
    const ModelSetting* const setting = room.settings.Find(key);
    ASSERT_NE(setting, nullptr) << key;
    for (const auto& [text, value, from] : cases) {
      const auto typed = Texts().Parse(*setting, text);
      EXPECT_EQ(typed ? Resolve(*setting, *typed, from) : std::nullopt, value) << key << text;
    }
  }
}

}  // namespace
