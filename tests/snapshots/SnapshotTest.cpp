// Snapshot files, typed values of settings, and repeated commands.

#include <gmock/gmock.h>
#include <limits>

#include "app/profiles/SettingsFile.h"
#include "settings/CatalogNumbers.h"
#include "tests/snapshots/DisturbedProjector.h"
#include "tests/support/Record.h"

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
  snapshot.dialogType = std::numeric_limits<int>::min();
  snapshot.modelCode = std::numeric_limits<int>::max();
  snapshot.settings[0].key = std::string(1022, 'k') + " k";  // the longest; the outermost values
  snapshot.settings[0].value = -32768;
  snapshot.settings[1].value = 65535;
  const QByteArray text = WriteSnapshot(snapshot);
  EXPECT_EQ(ReadSnapshot(text).snapshot, snapshot);
  const auto key = QString::fromStdString(snapshot.settings[0].key);
  ExpectAnswers(TEST_SOURCE_DIR "/snapshots/WrongFiles.txt", [&](const std::string& edit) {
    const QStringList texts = QString::fromStdString(edit).split(" becomes ");
    QByteArray wrong = text;
    wrong.replace(wrong.indexOf(texts[0].toUtf8()), texts[0].size(), texts[1].toUtf8());
    return ReadSnapshot(wrong).error.replace(key, "KEY").toStdString();
  });
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

// Two entries of a name, one without a name, one of the catalog, one that the catalog lacks, and a
// number.
ModelSetting HostsList() {
  using Kind = ModelSetting::Kind;
  ModelSetting list{.key = "input.hosts-list", .kind = Kind::Choice, .bias = 2, .entries = {}};
  list.entries = {{"HDMI", 31}, {"HDMI", 32}, {"VGA (1)", 1}, {"", 7}, {ListText::SwitchOff, 0},
                  {9999, 8},    {"-3", 125}};
  return list;
}

TEST(SettingTexts, AreThoseOfTheDialogAndRecognised) {
  const ConnectedProjector target(Profile("Projector 5-30"));
  const ModelSetting hosts = HostsList(), unlisted{.key = "input.dvi", .entries = {}};
  const SettingTexts& texts = Texts();
  ExpectAnswers(
      TEST_SOURCE_DIR "/snapshots/SettingTexts.txt",
      [&](const std::string& question) -> std::string {
        const QStringList words = QString::fromStdString(question).split('|');
        const QString &kind = words[0], third = words.value(2), last = words.value(3);
        const ModelSetting* const found = target.settings.Find(words[1].toStdString());
        const ModelSetting& setting = found ? *found : words[1] == "hosts" ? hosts : unlisted;
        if (kind == "values") return texts.Values(setting);
        if (kind == "caption") return texts.Caption(setting);
        if (kind == "name") {
          return texts.Name(target.settings, setting,
                            third.isEmpty() ? std::nullopt : std::optional(third.toInt()));
        }
        if (kind == "value" && last.isEmpty()) return texts.Value(setting, third.toInt());
        if (kind == "value") {
          return texts.Value(setting, third.toInt(), PowerState(last.toInt()));
        }
        const std::string text = third.toStdString();
        if (kind == "shown") {
          return texts.IsShownAs(setting, last.toInt(), text) ? "yes" : "no";
        }
        const auto typed = texts.Parse(setting, text);
        const auto value = typed ? Resolve(setting, *typed, last.toInt()) : std::nullopt;
        return value ? std::to_string(*value) : "none";
      });
  const ModelSetting& brightness = *target.settings.Find("picture.brightness");
  EXPECT_EQ(texts.Parse(brightness, std::string_view("51", 1))->amount, 133);
  EXPECT_FALSE(Resolve(*target.settings.Find("other.power"), {.amount = 1, .relative = true}, {}));
  const ModelSettings withoutInputs(Profile("Projector 9-1").model->data);
  EXPECT_EQ(texts.Source(withoutInputs, 4), "4");
  const std::vector<std::string> folders{TEST_CATALOG_DIR};
  EXPECT_EQ(SettingTexts(folders, 0x3FF).Caption(brightness), "Brightness") << "in English";
  EXPECT_EQ(SettingTexts(folders, 1031).Caption(brightness), "Helligkeit");
}

}  // namespace
