// Snapshot files, typed values of settings, and repeated commands.

#include <array>
#include <gmock/gmock.h>

#include "app/profiles/SettingsFile.h"
#include "settings/CatalogNumbers.h"
#include "tests/snapshots/DisturbedProjector.h"

namespace {

/// Treats each command as scripted: "a" answers, "l" loses the answer, "u" does not send the
/// command; the last letter repeats. "L" takes a time-out.
struct Unsteady : ProjectorChannel {
  PjtReply Execute(const PjtCommand&) override {
    const char now = does[std::min(count++, does.size() - 1)];
    if (now == 'L') clock += timeOut;
    return {.result = now == 'a', .answered = now == 'a', .unsent = now == 'u'};
  }
  void GiveUpAfter(std::chrono::milliseconds time) override { given = time; }
  void Abandon() override { isAbandoned = true; }

  std::string does;
  std::chrono::milliseconds timeOut{};
  PatientTime::Point clock{};
  std::size_t count = 0;
  std::chrono::milliseconds given{};
  bool isAbandoned = false;
};

TEST(PatientChannel, RepeatsOnlySafeCommandsAndNeverCutsOneShort) {
  using namespace std::chrono_literals;
  constexpr std::chrono::milliseconds kTimeOut = 1s;
  constexpr PjtCommand kRead{.operation = PjtOperation::GetInputSource};
  constexpr PjtCommand kChange{.operation = PjtOperation::SetMute, .first = 1};
  constexpr PjtCommand kStep{PjtOperation::Inc, 0x2001};
  struct Case {
    const char* does;  // script after a first answer or a greeting
    PjtCommand command;
    std::size_t times;  // number of times it is sent
    bool isAnswered, isUnsent, isGone;
  };
  const Case kCases[] = {
      {"lla", kRead, 3, true, false, false},   {"l", kRead, 3, false, false, true},
      {"L", kRead, 2, false, false, true},     {"la", kChange, 2, true, false, false},
      {"lla", kChange, 2, false, false, true}, {"lu", kChange, 2, false, false, true},
      {"la", kStep, 1, false, false, false},   {"ua", kStep, 2, true, false, false},
      {"u", kStep, 2, false, true, true},      {"La", kRead, 2, true, false, false}};
  const auto expect = [&](const Case& one, bool hasGreeted) {
    SCOPED_TRACE(testing::Message() << one.does << (hasGreeted ? " first" : " later"));
    const auto inner = std::make_shared<Unsteady>();
    inner->does = (hasGreeted ? "" : "a") + std::string(one.does);
    inner->timeOut = kTimeOut;
    PatientChannel patient(inner, kTimeOut, [hasGreeted] { return hasGreeted; },
                           {[&inner] { return inner->clock; },
                            [&inner](auto end) { inner->clock = std::max(inner->clock, end); }});
    if (!hasGreeted) patient.Execute(kRead);
    const std::size_t before = inner->count;
    const PjtReply reply = patient.Execute(one.command);
    EXPECT_EQ(inner->count, before + one.times);
    EXPECT_EQ(reply.answered, one.isAnswered);
    EXPECT_EQ(!reply.answered && reply.unsent, one.isUnsent);
    EXPECT_EQ(patient.IsGone(), one.isGone);
    EXPECT_EQ(inner->given, std::chrono::milliseconds()) << "its time is its own";
  };
  for (const Case& one : kCases) {
    expect(one, false);
    expect(one, true);
  }
  for (const PjtCommand& command : {kRead, kStep}) {
    const auto dead = std::make_shared<Unsteady>();
    dead->does = "l";
    PatientChannel patient(dead, kTimeOut);
    EXPECT_FALSE(patient.Execute(command).answered || patient.Execute(command).answered);
    EXPECT_EQ(dead->count, 1) << "it has neither greeted nor answered";
    patient.GiveUpAfter(kTimeOut);
    patient.Abandon();
    EXPECT_TRUE(dead->given == kTimeOut && dead->isAbandoned) << "all is passed on";
  }
}

TEST(Snapshot, IsReadAsWrittenAndRefusedIfInvalid) {
  ConnectedProjector target(Profiles().front());
  Snapshot snapshot = target.Take();
  snapshot.isUndo = true;
  snapshot.settings[0].key = std::string(1022, 'k') + " k";  // the longest; the outermost values
  snapshot.settings[0].value = -32768;
  snapshot.settings[1].value = 65535;
  const QByteArray text = WriteSnapshot(snapshot);
  EXPECT_EQ(ReadSnapshot(text).snapshot, snapshot);
  for (const auto& [from, to, error] : std::vector<std::array<const char*, 3>>{
           {"\"format\"", "\"formal\"", "not a file of saved settings"},
           {"\"version\": 1", "\"version\": 2", "only version 1"},
           {"\"value\": ", "\"value\": 0.5, \"x\": ", "from -32768 to 65535, and is 0.5"},
           {"\"value\": ", "\"value\": \"1234567890123456789012345678901234567890\", \"x\": ",
            "is \"123456789012345678901234567890123456789..."},
           {"\"value\": ", "\"value\": 1e9, \"x\": ", "settings[0].value: must be a whole"},
           {"\"value\": ", "\"other\": ", "k: settings[0].value: a whole number is missing"},
           {"\"value\": ", "\"value\": -32769, \"x\": ", "settings[0].value: must be a whole"},
           {"\"value\": ", "\"value\": 65536, \"x\": ", "settings[0].value: must be a whole"},
           {"\"settings\": [", "\"settings\": [1,", "settings[0]: must be an object"},
           {"\"settings\"", "\"settingz\"", "settings: must be an array"},
           {"\"settings\"", "\"beforehand\": 1, \"settings\"", "beforehand: must be an array"},
           {"\"key\": \"", "\"kez\": \"", "settings[0].key: must be a line"},
           {"\"key\": \"", "\"key\": \"k", "settings[0].key: must be a line"},
           {"\"key\": \"k", "\"key\": \"\\n", "settings[0].key: must be a line"},
           {"\"settings\": [",
            "\"settings\": [{\"key\": \"a\", \"value\": 1}, {\"key\": \"a\", \"value\": 1},",
            "settings[1].key: \"a\" is here twice"},
           {"\"model\": {", "\"model\": {]", "line 3: "}}) {
    QByteArray wrong = text;
    wrong.replace(wrong.indexOf(from), static_cast<int>(strlen(from)), to);
    EXPECT_THAT(ReadSnapshot(wrong).error.toStdString(), testing::HasSubstr(error));
  }
  const auto withSettings = [&text](int count) {
    QByteArray many = text;
    return many.replace("\"settings\": [", "\"settings\": [" + QByteArray("1,").repeated(count));
  };
  const int free = 10'000 - static_cast<int>(snapshot.settings.size());
  EXPECT_EQ(ReadSnapshot(withSettings(free)).path, "settings[0]");
  EXPECT_EQ(ReadSnapshot(withSettings(free + 1)).path, "settings");
  EXPECT_EQ(ReadSnapshot("[1]").error, "must hold an object");
  constexpr qsizetype kMost = qsizetype{4} << 20;
  EXPECT_EQ(ReadSnapshot(text.leftJustified(kMost)).error, "");
  EXPECT_EQ(ReadSnapshot(text.leftJustified(kMost + 1)).error, "is larger than 4 MiB");
}

TEST(SettingsFile, TellsWhatIsWrongAndWhere) {
  const QByteArray good = WriteSnapshot(Wanted({}, {{"other.input-source", 2, "B", {}}}));
  const auto error = [&good](const char* part, const char* instead) {
    const QByteArray text = QByteArray(good).replace(part, instead);
    return ParseSettingsFile(text, "f").error.section(": ", 1).toStdString();
  };
  EXPECT_EQ(error("2", "2, \"value\": 2"), "other.input-source: beforehand[0].value is here twice");
  EXPECT_EQ(
      error("\"settings\":", "\"settings\": [{\"key\": \"a\", \"key\": \"a\"}], \"settings\":"),
      "settings[0].key is here twice");
  EXPECT_EQ(error("\"model\":", "\"model\": {}, \"model\":"), "model is here twice");
  EXPECT_EQ(ParseSettingsFile("\xEF\xBB\xBF" + good, "f").error, "");
  EXPECT_EQ(error("B", "\x01"), "control character in a text");
  EXPECT_EQ(FileNameOf("Room 1/2-\xC3\xA4"), QString("Room_1_2-\u00E4"));
}

TEST(Snapshot, StopsOnRequest) {
  ConnectedProjector target(Profiles().front());
  int steps = 0;
  const Progress progress{.goesOn = [&steps] { return steps < 3; }, .step = [&steps] { ++steps; }};
  EXPECT_EQ(TakeSnapshot("", target.settings, target.connection, Texts(), progress).settings.size(),
            3U);
}

TEST(SettingTexts, ParsesTypedValues) {
  const ConnectedProjector target(Profile("Projector 5-30"));
  struct Typed {
    const char* text;
    std::optional<int> value;  // from the present value `from`
    int from = 0;
  };
  const std::pair<const char*, std::vector<Typed>> kCases[] = {
      {"picture.brightness", {{"5", 133}, {"=-31", 97}, {"32", {}}, {"", {}}, {"5x", {}}}},
      {"picture.brightness", {{"99999999999", {}}, {"2147483647", {}}, {"-2147483648", {}}}},
      {"picture.brightness", {{"+3", 131, 128}, {"-3", 125, 128}, {"+1", {}, 159}}},
      {"picture.sharpness", {{"4", 128}}},
      {"picture.active-iris", {{"theater", 16}, {"影院", 16}, {"kino", 16}, {"シアター", 16}}},
      {"picture.active-iris", {{"17", 17}, {"1", {}}, {"standby", {}}, {"+1", 16, 0}}},
      {"picture.active-iris", {{"+1", {}, 17}, {"-1", {}, 0}, {"-1", 0, 16}, {"+1", {}, 99}}},
      {"setup.mirror", {{"H&V Inverse", 3}}},
  };
  for (const auto& [key, cases] : kCases) {
    const ModelSetting* const setting = target.settings.Find(key);
    ASSERT_NE(setting, nullptr) << key;
    for (const auto& [text, value, from] : cases) {
      const auto typed = Texts().Parse(*setting, text);
      EXPECT_EQ(typed ? Resolve(*setting, *typed, from) : std::nullopt, value) << key << text;
    }
  }
  const ModelSetting& brightness = *target.settings.Find("picture.brightness");
  EXPECT_EQ(Texts().Parse(brightness, std::string_view("51", 1))->amount, 133);
}

// Two entries of a name, one without a name, one of the catalog, and one that the catalog lacks.
ModelSetting HostsList() {
  using Kind = ModelSetting::Kind;
  ModelSetting list{.key = "input.hosts-list", .kind = Kind::Choice, .bias = 2, .entries = {}};
  list.entries = {{"HDMI", 31}, {"HDMI", 32}, {"VGA (1)", 1}, {"", 7}, {ListText::SwitchOff, 0},
                  {9999, 8}};
  return list;
}

TEST(SettingTexts, AreThoseOfTheDialog) {
  const ConnectedProjector target(Profile("Projector 5-30"));
  const ModelSetting hosts = HostsList();
  const auto setting = [&](const char* key) -> const ModelSetting& {
    const ModelSetting* const found = target.settings.Find(key);
    return found != nullptr ? *found : hosts;
  };
  const std::pair<const char*, std::vector<std::pair<int, const char*>>> kTexts[] = {
      {"other.power", {{0, "Standby"}, {1, "On"}, {2, "Cooling Down"}, {9, "Standby"}}},
      {"status.blank", {{1, "On"}, {5, "Off"}}},
      {"status.lamp-time", {{12, "12 h"}}},
      {"picture.brightness", {{131, "3"}}},
      {"hosts", {{31, "HDMI (31)"}, {1, "VGA (1)"}, {7, "5"}, {8, "6"}, {9, "7"}, {0, "Off"}}}};
  for (const auto& [key, texts] : kTexts) {
    for (const auto& [value, text] : texts) EXPECT_EQ(Texts().Value(setting(key), value), text);
  }
  const auto inPower = [&](const char* key, int value, PowerState power) {
    return Texts().Value(setting(key), value, power);
  };
  EXPECT_EQ(inPower("other.power", 1, PowerState::WarmingUp), "Warming Up");
  EXPECT_EQ(inPower("other.power", 0, PowerState::WarmingUp), "Standby");
  EXPECT_EQ(inPower("other.power", 1, PowerState::On), "On");
  EXPECT_EQ(inPower("other.blank", 1, PowerState::WarmingUp), "On");
  EXPECT_EQ(Texts().Values(setting("other.power")), "Standby, On");
  EXPECT_EQ(Texts().Values(setting("picture.brightness")), "-31 to 31");
  EXPECT_EQ(Texts().Values(setting("image.h-size")), "a number");
  EXPECT_EQ(Texts().Values(setting("picture.active-iris")), "Off, Theater, Presentation");
  EXPECT_EQ(Texts().Caption(setting("picture.tint")) +
                Texts().Caption({.key = "input.dvi", .entries = {}}),
            "TintDVI");
  const auto name = [&](const char* key, std::optional<int> source = {}) {
    return Texts().Name(target.settings, setting(key), source);
  };
  EXPECT_EQ(name("picture.tint") + name("image.position-v") + name("image.position-h"),
            "TintPosition VPosition H");
  EXPECT_EQ(name("gamma.pattern") + name("audio.volume", 4),
            "User Gamma Pattern (Gamma)Volume (RGB2)");
  const ModelSettings withoutInputs(Profile("Projector 9-1").model->data);
  EXPECT_EQ(Texts().Source(withoutInputs, 4), "4");
  const std::vector<std::string> folders{TEST_CATALOG_DIR};
  EXPECT_EQ(SettingTexts(folders, 0x3FF).Caption(setting("picture.tint")), "Tint") << "in English";
  EXPECT_EQ(SettingTexts(folders, 1031).Caption(setting("picture.brightness")), "Helligkeit");
}

TEST(SettingTexts, AreRecognised) {
  const ConnectedProjector target(Profile("Projector 5-30"));
  const ModelSetting hosts = HostsList();
  const std::pair<const char*, std::optional<int>> kTyped[] = {
      {"hdmi (32)", 32}, {"hdmi", {}}, {"vga", 1}, {"vga (1)", 1}, {"off", 0}, {"5", 7}, {"", 7}};
  for (const auto& [text, value] : kTyped) {
    const auto typed = Texts().Parse(hosts, text);
    EXPECT_EQ(typed ? std::optional(typed->amount) : std::nullopt, value) << text;
  }
  const SettingTexts& texts = Texts();
  const ModelSetting& power = *target.settings.Find("other.power");
  EXPECT_EQ(texts.Parse(power, "standby")->amount, 0);
  EXPECT_FALSE(Resolve(power, {.amount = 1, .relative = true}, {}));
  const ModelSetting& iris = *target.settings.Find("picture.active-iris");
  for (const char* text : {"theater", "シアター", "16"}) {
    EXPECT_TRUE(texts.IsShownAs(iris, 16, text)) << text;
  }
  for (const char* text : {"off", "17", ""}) EXPECT_FALSE(texts.IsShownAs(iris, 16, text)) << text;
  const ModelSetting& brightness = *target.settings.Find("picture.brightness");
  EXPECT_TRUE(texts.IsShownAs(brightness, 131, "3") && !texts.IsShownAs(brightness, 131, "131"));
  EXPECT_TRUE(texts.IsShownAs(hosts, 31, "hdmi (31)") && !texts.IsShownAs(hosts, 31, "HDMI (32)"));
  EXPECT_TRUE(texts.IsShownAs(power, 0, "Standby"));
}

}  // namespace
