#include <memory>

#include <gtest/gtest.h>

#include "tests/pages/SetupPage.h"

namespace {

// Keeps what the connection had been told when the last change was sent.
struct TextProbe final : ProjectorChannel {
  TextProbe(CPjtInterface& projector, std::shared_ptr<ProjectorChannel> channel)
      : connection(projector), next(std::move(channel)) {}
  PjtReply Execute(const PjtCommand& command) override {
    if (!IsRead(command.operation)) told = connection.SettingText;
    return next->Execute(command);
  }

  CPjtInterface& connection;
  std::shared_ptr<ProjectorChannel> next;
  std::string told;
};

struct ListCase {
  std::vector<int> codes;
  int combo;
  std::string set;
  std::string get;
  const char* list;  // value and text of each entry
  bool tellsText = false;
  const char* flag = "";  // sent behind the value
};

const char* const kTwo = "0=Off,1=Audio1,2=Audio2";
const char* const kThree = "0=Off,1=Audio1,2=Audio2,3=Audio3";
const char* const kMiu = "0=Off,1=Audio1,2=Audio2,3=Audio3,16=Audio MIU";
const char* const kComputers = "255=Off,0=Computer1,4=Computer2";
const char* const kRgbs = "255=Off,0=RGB1,4=RGB2";

// clang-format off
const ListCase kListCases[] = {
    {{44}, 20315, "SetWhisper", "GetWhisper", "0=Normal,1=Bright"},
    {{44}, 20316, "SetMirror", "GetMirror", "0=Normal,1=H Inverse,2=V Inverse,3=H&V Inverse"},
    {{44}, 20321, "SetSpeaker", "GetSpeaker", "0=Off,1=On", true},
    {{32, 36}, 20320, "SetAudioRGB1", "GetAudioRGB1", kThree},
    {{32}, 20322, "SetAudioRGB2", "GetAudioRGB2", kThree},
    {{39, 42}, 20369, "SetAudioComputer1", "GetAudioRGB1", kThree, true},
    {{40}, 20370, "SetAudioComputer2", "GetAudioRGB2", kThree, true},
    {{37}, 20369, "SetAudioComputer1", "GetAudioRGB1", kTwo, true},
    {{37}, 20370, "SetAudioComputer2", "GetAudioRGB2", kTwo, true},
    {{36}, 20323, "SetAudioVideo", "GetAudioVideo", kThree},
    {{37}, 20323, "SetAudioVideo", "GetAudioVideo", kTwo},
    {{36}, 20324, "SetAudioSVideo", "GetAudioSVideo", kThree},
    {{37}, 20324, "SetAudioSVideo", "GetAudioSVideo", kTwo},
    {{36}, 20325, "SetAudioComponent", "GetAudioComponent", kThree},
    {{42}, 20329, "SetAudioM1D", "GetAudioM1D",
     "0=Off,1=Audio1,2=Audio2,3=Audio3,32=Audio HDMI", true, " 1"},
    {{36, 40, 42}, 20326, "SetAudioMIU", "GetAudioMIU", kMiu},
    {{38}, 20326, "SetAudioMIU", "GetAudioMIU", "0=Off,1=Audio,16=Audio MIU"},
    {{42}, 20330, "SetHDMIAudio", "GetHDMIAudio", "1=1,2=2"},
    {{49, 53}, 20360, "SetMonitorOutComputer1", "GetMonitorOutComputer1", "255=Off,0=Computer1"},
    {{50}, 20361, "SetMonitorOutComputer2", "GetMonitorOutComputer2", "255=Off,4=Computer2"},
    {{51}, 20371, "SetMonitorOutComputer1", "GetMonitorOutComputer1", kRgbs},
    {{51}, 20372, "SetMonitorOutComputer2", "GetMonitorOutComputer2", kRgbs},
    {{54}, 20371, "SetMonitorOutComputer1", "GetMonitorOutComputer1", "255=Off,0=RGB1"},
    {{54}, 20372, "SetMonitorOutComputer2", "GetMonitorOutComputer2", "255=Off,4=RGB2"},
    {{53}, 20362, "SetMonitorOutHDMI", "GetMonitorOutHDMI", kComputers},
    {{51, 54}, 20362, "SetMonitorOutHDMI", "GetMonitorOutHDMI", kRgbs},
    {{49}, 20363, "SetMonitorOutComponent", "GetMonitorOutComponent", kComputers},
    {{51}, 20363, "SetMonitorOutComponent", "GetMonitorOutComponent", kRgbs},
    {{49}, 20364, "SetMonitorOutSVideo", "GetMonitorOutSVideo", kComputers},
    {{54}, 20364, "SetMonitorOutSVideo", "GetMonitorOutSVideo", kRgbs},
    {{49}, 20365, "SetMonitorOutVideo", "GetMonitorOutVideo", kComputers},
    {{54}, 20365, "SetMonitorOutVideo", "GetMonitorOutVideo", kRgbs},
    {{54}, 20366, "SetMonitorOutMIU", "GetMonitorOutMIU", kRgbs},
    {{49}, 20367, "SetMonitorOutStandby", "GetMonitorOutStandby", kComputers},
    {{54}, 20367, "SetMonitorOutStandby", "GetMonitorOutStandby", kRgbs},
};
// clang-format on

void ExpectListSendsAndShows(const ListCase& list, int code) {
  SetupPage page(code);
  CPjtInterface& connection = page.open.Dialog().Projector();
  const auto probe = std::make_shared<TextProbe>(connection, connection.Channel());
  connection.SetChannel(probe);
  QStringList texts;
  std::vector<int> values;
  for (const QString& entry : QString(list.list).split(',')) {
    values.push_back(entry.section('=', 0, 0).toInt());
    texts << entry.section('=', 1);
  }
  ASSERT_EQ(page.driver.Entries(list.combo), texts);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const auto position = static_cast<int>(i);
    const auto other = static_cast<int>((i + 1) % values.size());
    const std::string sent = list.set + ' ' + std::to_string(values[i]) + list.flag;
    connection.SettingText = "before";
    page.projector.Accept(list.set);
    page.driver.Choose(list.combo, position);
    EXPECT_EQ(page.projector.Take(), Strings{sent});
    EXPECT_EQ(probe->told, list.tellsText ? texts[position].toStdString() : "before");

    page.projector.Refuse(list.set);
    page.projector.Answer(list.get, values[(i + 1) % values.size()]);
    page.driver.Choose(list.combo, position);
    EXPECT_EQ(page.projector.Take(), (Strings{sent, list.get})) << "a refusal is read back";
    EXPECT_EQ(page.driver.Selected(list.combo), other);

    page.Refresh([&](RecordingChannel& channel) { channel.Answer(list.get, values[i]); });
    EXPECT_EQ(page.driver.Selected(list.combo), position);

    page.projector.Refuse(list.get);
    page.driver.Choose(list.combo, other);
    EXPECT_EQ(page.driver.Selected(list.combo), other) << "nothing to go back to";
    page.projector.Accept(list.get);
    page.projector.Take();
  }
}

TEST(SetupListTest, EntriesSendAndShowTheirValues) {
  for (const ListCase& list : kListCases) {
    for (const int code : list.codes) {
      SCOPED_TRACE(list.set + " of " + std::to_string(code));
      ExpectListSendsAndShows(list, code);
    }
  }
}

TEST(SetupListTest, AValueWithoutAnEntryLeavesRoutingsAndClearsModes) {
  SetupPage page(42);
  EXPECT_EQ(page.driver.Selected(20330), -1) << "0 is no HDMI sound mode";
  page.driver.Choose(20330, 1);
  page.projector.Refuse("SetHDMIAudio");
  page.driver.Choose(20330, 0);
  EXPECT_EQ(page.driver.Selected(20330), 0);
  page.Refresh([](RecordingChannel& channel) {
    channel.Answer("GetHDMIAudio", 9);
    channel.Answer("GetWhisper", 2);  // the list has lost its unknown middle name
  });
  EXPECT_EQ(page.driver.Selected(20330), 0);
  EXPECT_TRUE(page.driver.IsEnabled(20330));
  EXPECT_EQ(page.driver.Selected(20315), -1);
}

TEST(SetupStandbyTest, SavingIsAskedForFirst) {
  SetupPage page(53);
  {
    MessageBoxes no(false);
    page.driver.Choose(20368, 1);
    const auto seen = no.Take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, CatalogString(2201, 1002));
    EXPECT_EQ(seen[0].icon, QMessageBox::Information);
    EXPECT_EQ(page.projector.Take(), Strings{"GetStandbyMode"});
    EXPECT_EQ(page.driver.Selected(20368), 0);
  }
  MessageBoxes yes(true);
  page.driver.Choose(20368, 1);
  EXPECT_EQ(yes.Take().size(), 1U);
  EXPECT_EQ(page.projector.Take(), Strings{"SetStandbyMode 1"});
  EXPECT_EQ(page.driver.Selected(20368), 1);
  page.driver.Choose(20368, 0);
  EXPECT_EQ(page.projector.Take(), Strings{"SetStandbyMode 0"});
  page.projector.Refuse("SetStandbyMode");
  page.projector.Answer("GetStandbyMode", 1);
  page.driver.Choose(20368, 0);
  EXPECT_EQ(page.projector.Take(), (Strings{"SetStandbyMode 0", "GetStandbyMode"}));
  EXPECT_EQ(page.driver.Selected(20368), 1);
  EXPECT_TRUE(yes.Take().empty()) << "only Saving is asked for, and no refusal is told";
}

}  // namespace
