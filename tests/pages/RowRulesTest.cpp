// What follows the use of each row: what is read then, told and shown, when the projector does what
// it is asked for and when it refuses. What the rows send is in PagesByModel.txt.

#include <QCheckBox>
#include <QTest>
#include <gtest/gtest.h>

#include "device/LoggingChannel.h"
#include "device/ModelDataIntake.h"
#include "settings/PageTables.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/NumberedCatalog.h"

namespace {

using Strings = std::vector<std::string>;

enum class Then {
  Plain,          // Refused, a list keeps the choice, a slider goes back and a check box is read.
  Stays,          // A refused drag leaves the slider and tells nothing.
  GoesBack,       // A refused drag tells nothing.
  OwnSteps,       // The page has its own way to step.
  ReadsBack,      // A refused choice is read back,
  ReadsPosition,  // and taken for a position.
  AlwaysReads,    // Every choice is read back.
  GreysField,     // A failed read takes the field out of use as well.
  Rereads,        // The page is read again after an action that is done; a reset does so anyway.
  AlwaysRereads,  // The same, also after one that is not, and after every choice.
};
using enum Then;

struct RowRule {
  int control;
  int error = 0;   // number of the text that tells a refusal
  int range = -1;  // number of the model's text for the slider's range
  Then then = Plain;
  NoEntry unknown = NoEntry::Clears;
};

struct PageRules {
  const char* name;
  int dialogType, modelCode, tab;
  std::vector<RowRule> rows;  // Any row that is in none of these is plain and tells nothing.
  std::string resets{};       // in the order of their list
  bool refusedIsReadBack = false;
  std::vector<int> readBack{}, alwaysRead{}, keep{}, positions{};
  std::vector<int> readPosition{};
  std::vector<int> tellText{};   // of a choice, to the connection, before it is sent
  std::vector<int> stayInUse{};  // after a failed read
  std::vector<int> own{};        // The page's own tests tell.
};
void PrintTo(const PageRules& page, std::ostream* stream) { *stream << page.name; }

// Instead of a tab.
constexpr int kGamma = -1, kColorTemp = -2, kService = -3;

// The lists of the newest setup and audio pages; each model has some of them.
const std::vector<int> kSetupLists{20315, 20316, 20321, 20320, 20322, 20323, 20324, 20325,
                                   20326, 20330, 20369, 20370, 20329, 20360, 20361, 20371,
                                   20372, 20362, 20363, 20364, 20365, 20366, 20367};
const std::vector<int> kSetupRouting(kSetupLists.begin() + 3, kSetupLists.end());
const std::vector<int> kAudioRouting{20354, 20356, 20358, 20359, 20360, 20361,
                                     20362, 20363, 20365, 20366, 20367, 20368};
const std::vector<int> kAudioLists = [] {
  std::vector<int> lists = kAudioRouting;
  lists.push_back(20364);
  return lists;
}();

PageRules SetupType5(const char* name, int modelCode) {
  return {.name = name,
          .dialogType = 5,
          .modelCode = modelCode,
          .tab = 4,
          .rows = {{20310, 0, 19},
                   {20311, 0, 20},
                   {20317, 0, 21},
                   {20332, 314, -1, GoesBack},
                   {20144, 315},
                   {20145, 315}},
          .readBack = kSetupLists,
          .keep = kSetupRouting,
          .tellText = {20321, 20369, 20370, 20329},
          .own = {20310, 20311, 20317, 20328, 20368}};
}

PageRules AudioType5(const char* name, int modelCode) {
  return {.name = name,
          .dialogType = 5,
          .modelCode = modelCode,
          .tab = 5,
          .rows = {{20347, 0, 21}, {20350, 0, 32}, {20353, 0, 33}},
          .readBack = {20364},
          .keep = {20364},
          .positions = kAudioRouting,
          .readPosition = kAudioRouting,
          .tellText = kAudioRouting,
          .stayInUse = kAudioLists,
          .own = {20347, 20350, 20353, 20381}};
}

// clang-format off
const PageRules kPages[] = {
    {"Status", 1, 1, 0, {}, "LampTime FilterTime"},
    {"Main", 1, 1, 1, {{20101, 58, 17}, {20105, 59, 18}, {20112, 0, -1, AlwaysRereads}},
     "Brightness Contrast", false, {20109, 20110}, {20108}},
    {"Main2", 2, 6, 1, {{20101, 58, 17}, {20105, 59, 18}, {20115, 64}, {20112, 0, -1, AlwaysRereads}},
     "Brightness Contrast KeyStone", false, {20109, 20110}, {20108}},
    // On the older picture pages every refusal that is told is read back before.
    {"Pic", 4, 11, 1,
     {{20136, 58, 17}, {20138, 59, 18}, {20151, 60, 27}, {21062, 15, 28}, {20152, 17, 26}, {20144, 61}, {21065, 0, -1, Rereads}},
     "Brightness Contrast Color Tint Sharpness", true},
    {"Picture1", 1, 1, 2,
     {{21047, 77, 29}, {21049, 61}, {21050, 74}, {21051, 75}, {21052, 76}, {21067, 73, 23}, {21039, 81, 24},
      {21042, 72, 25}, {21055, 17, 26}, {21058, 60, 27}, {21061, 15, 28}, {21064, 0, -1, Rereads}},
     "ColorBalR ColorBalG ColorBalB Sharpness Color Tint", true},
    {"Picture12", 2, 14, 2, {{21067, 73, 23}, {21042, 72, 25}, {21055, 17, 26}, {21058, 60, 27}, {21061, 15, 28}},
     "ColorBalR ColorBalB Sharpness Color Tint", true},
    {"Picture2", 1, 1, 3, {{20021, 54}, {20022, 54}, {21071, 55, 16}, {21109, 56}, {21050, 53, 15}},
     "VPos HPos HSize OverScan", true},
    {"Picture22", 2, 14, 3, {{20045, 54}, {20044, 54}, {20036, 55, 16}, {20040, 56}, {20030, 53}},
     "VPos HPos HSize OverScan", true},
    // It shows no over scan, but resets it.
    {"Picture22Short", 2, 15, 3, {{20045, 54}, {20044, 54}, {20036, 55, 16}, {20040, 56}},
     "VPos HPos HSize OverScan", true},
    {"Image", 3, 10, 3, {{21045, 64}, {20121, 343}}, "KeyStone", false, {}, {}, {20112}},
    {"Image4", 5, 30, 2,
     {{20047, 53, 15}, {20205, 54}, {20206, 54}, {20209, 55, 16}, {20212, 56}, {20215, 4203, -1, Rereads}},
     "OverScan VPos HPos HSize"},
    // On the newest one a refused drag stays, and an iris mode without an entry is not shown.
    {"PictureType5", 5, 30, 1,
     {{20136, 58, 17, Stays}, {20138, 59, 18, Stays}, {20151, 60, 27, Stays}, {21062, 15, 28, Stays}, {20152, 17, 26, Stays},
      {20144, 61}, {20293, 78, -1, Plain, NoEntry::Ignored}, {21065, 0, -1, Rereads}, {21070, 0, -1, AlwaysRereads}},
     "Brightness Contrast Color Tint Sharpness"},
    {"Setup", 3, 4, 1,
     {{20079, 58, 17}, {20083, 59, 18}, {20090, 54}, {20091, 54}, {20093, 55}, {20097, 56}, {21057, 17, 26},
      {21060, 60, 27}, {21063, 15, 28}, {20104, 73, 23}, {21043, 72, 25}},
     "Brightness Contrast VPos HPos HSize Sharpness Color Tint ColorBalR ColorBalB"},
    {"Setup4", 4, 11, 4, {{21048, 79, 31}, {20250, 64, 19}, {20245, 65, 21}}, "ElectricZoom KeyStone", false,
     {20242, 20243, 21043, 21044, 21051, 21052, 21053}, {}, {21043, 21044, 21051, 21052, 21053}},
    {"Screen", 1, 1, 6, {{20021, 62, -1, GreysField}, {20022, 62, -1, GreysField}},
     "MenuPositionV MenuPositionH", false, {}, {}, {21085, 21086}},
    {"Screen4", 5, 30, 6,
     {{20231, 62, -1, GreysField}, {20232, 62, -1, GreysField}, {20234, 63, 30}, {20242, 336}, {20243, 337},
      {20244, 338}, {20245, 339}, {20246, 340}, {20247, 341}, {20248, 342}},
     "MenuPositionV MenuPositionH", false, {}, {}, {20237, 21086}},
    {"Input", 1, 1, 4, {{21057, 57}}, "", false, {}, {}, {}, {21076}},
    {"InputWithFrameLock", 1, 16, 4, {}, "", false, {}, {}, {}, {21076}},
    {"Input2", 2, 6, 4, {}, "", false, {}, {}, {}, {20055}},
    {"Input2WithAutoAdjust", 2, 14, 4, {{20049, 4203}}, "", false, {}, {}, {}, {20055}},
    {"Input3", 3, 4, 2, {{20108, 4203}}, "", false, {}, {}, {}, {20109}},
    {"Input4", 4, 9, 4, {}, "", false, {}, {}, {}, {20224}},
    {"Input4WithFrameLock", 4, 11, 3, {}, "", false, {}, {}, {}, {20224}},
    {"Video", 4, 9, 3, {}},
    {"Auto", 1, 1, 5, {{20120, 4203}, {20123, 4204, 0}}, "", false, {20121, 20126}},
    {"Auto2", 2, 6, 5, {{20120, 4203}, {20123, 4204, 0}}, "", false, {20121}},
    {"Option", 1, 1, 7, {{20131, 65, 21}}, "", false, {}, {20135, 20136, 20137, 20138, 20139}},
    {"Option2", 2, 14, 6, {{20131, 65, 21}, {20123, 4204, 0}}, "", false, {20134, 20121}, {20135, 20136, 20137, 20138, 20139}},
    {"Option3", 3, 4, 4, {{20131, 65, 21}, {20123, 4204, 0}}, "", false, {20134, 20121}, {20136, 20137}},
    {"Option4", 4, 11, 6, {{20123, 4204, 0}}, "", false, {20121, 20126, 20127}, {20138, 20139}},
    {"OptionType5", 5, 40, 6, {{20369, 0, 0}, {20371, 0, -1, ReadsPosition}, {20372, 0, -1, ReadsPosition}}, "", false,
     {20364, 20365, 20366}},
    {"Other", 1, 1, 8, {{20103, 4200, -1, AlwaysRereads}}, "", false, {}, {20104, 20105, 20106}},
    {"Other4", 5, 34, 7, {{20103, 4200, -1, AlwaysRereads}}, "", false, {},
     {20104, 20105, 20106, 20107, 20108, 20109, 20110}},
    {"InputType5", 5, 30, 3, {}}, {"InputType5WithM1D", 5, 41, 3, {}}, {"InputType5WithHdmi", 5, 53, 3, {}},
    SetupType5("SetupType5Of36", 36), SetupType5("SetupType5Of42", 42), SetupType5("SetupType5Of44", 44),
    SetupType5("SetupType5Of53", 53), SetupType5("SetupType5Of54", 54),
    AudioType5("AudioType5Of30", 30), AudioType5("AudioType5Of53", 53), AudioType5("AudioType5Of54", 54),
    {.name = "Gamma", .dialogType = 5, .modelCode = 30, .tab = kGamma,
     .rows = {{20158, 52}, {20181, 44, 7}, {21024, 45, 8}, {21025, 46, 9}, {21026, 47, 10}, {21027, 48, 11},
              {21028, 49, 12}, {21029, 50, 13}, {21030, 51, 14}},
     .stayInUse = {20158}},
    {.name = "ColorTemp", .dialogType = 5, .modelCode = 30, .tab = kColorTemp,
     .rows = {{20158, 52}, {20181, 38, 1, OwnSteps}, {21024, 39, 2, OwnSteps}, {21025, 40, 3, OwnSteps},
              {21026, 41, 4, OwnSteps}, {21027, 42, 5, OwnSteps}, {21028, 43, 6, OwnSteps}},
     .stayInUse = {20158}},
    {"Service", 5, 44, kService, {}, "", false, {20374, 20378, 20379, 20381}},
    {"ServiceWithReceivers", 5, 30, kService, {}, "", false, {20374, 20378, 20379}},
};
// clang-format on

bool Has(const std::vector<int>& controls, int control) {
  return std::ranges::find(controls, control) != controls.end();
}

// The rule of a control, put together from all that is told of it.
RowRule RuleOf(const PageRules& page, int control) {
  const auto has = [control](const std::vector<int>& controls) { return Has(controls, control); };
  const auto told = std::ranges::find(page.rows, control, &RowRule::control);
  RowRule rule = told != page.rows.end() ? *told : RowRule{control};
  if (has(page.readBack)) rule.then = ReadsBack;
  if (has(page.alwaysRead)) rule.then = AlwaysReads;
  if (has(page.readPosition)) rule.then = ReadsPosition;
  if (has(page.keep)) rule.unknown = NoEntry::Keeps;
  if (has(page.positions)) rule.unknown = NoEntry::IsPosition;
  return rule;
}

const PageTable& TableOf(const PageRules& page) {
  if (page.tab == kGamma) return kGammaRows;
  if (page.tab == kColorTemp) return kColorTempRows;
  if (page.tab == kService) return kServiceRows;
  const auto tab = static_cast<std::size_t>(page.tab);
  return TableOf(tab == 0 ? PageId::Status : TabsOf(page.dialogType, page.modelCode)[tab - 1].page);
}

// A command as the scripted projector knows it.
std::string Key(const Call& call) {
  RecordingChannel channel;
  channel.Execute(call.Command());
  return channel.Take().front();
}

// The page in front, or the pop-up over it.
struct Shown {
  Shown(const PageRules& page, const CModelInfo2& info) : open(info, std::max(page.tab, 0)) {
    if (page.tab >= 0) return;
    popUp = MakePopUp(static_cast<PopUp>(kGamma - page.tab), open.Dialog());
    Open(*popUp);
    EXPECT_TRUE(QTest::qWaitForWindowActive(popUp.get()));
  }
  CDialog& Dialog() { return popUp ? *popUp : static_cast<CDialog&>(open.Page()); }
  void ReadAgain() { popUp ? Open(*popUp) : open.Page().InitDisp(); }

  OpenDialog open;
  std::unique_ptr<RowDialog> popUp;
};

// On a projector whose values may change between two reads.
class RowRules : public testing::TestWithParam<PageRules> {
 protected:
  RowRules() {
    connection.SetChannel(std::make_shared<LoggingChannel>(
        connection.Channel(), [this](const PjtCommand& command, auto&&...) {
          if (!IsRead(command.operation)) textTold = connection.SettingText;
        }));
  }

  // The page shows `value`, and `later` is what is read from then on.
  void Show(const std::string& read, int value, int later) {
    projector.RefuseChanges(false);
    projector.Answer(read, value);
    view.ReadAgain();
    projector.Answer(read, later);
  }

  // What `act` sends; a refusal is told with the rule's text, or with none.
  Strings Sent(bool refused, int error, const std::function<void()>& act) {
    projector.RefuseChanges(refused);
    projector.Take();
    act();
    projector.RefuseChanges(false);
    const auto told = boxes.Take();
    EXPECT_EQ(told.size(), refused && error != 0 ? 1U : 0U);
    for (const auto& box : told) {
      EXPECT_EQ(box.text, QString::number(error));
      EXPECT_EQ(box.icon, QMessageBox::Critical);
    }
    return projector.Take();
  }

  // The controls are out of use while the row cannot be read.
  void ExpectUnreadable(const std::string& read, std::initializer_list<int> controls) {
    for (const bool refused : {true, false}) {
      refused ? projector.Refuse(read) : projector.Accept(read);
      view.ReadAgain();
      for (const int id : controls) EXPECT_NE(driver.IsEnabled(id), refused) << id;
    }
  }

  void Expect(const ListRow& row, const RowRule& rule);
  void Expect(const ValueRow& row, const RowRule& rule);
  void Expect(const CheckRow& row, const RowRule& rule);
  void Expect(const ActionRow& row, const RowRule& rule);
  void Expect(const ResetRow& row, const RowRule& rule);
  void Expect(const auto&, const RowRule&) {}

  const PageRules& page = GetParam();
  const CModelInfo2 info = FullModel(page.dialogType, page.modelCode);
  const ModelData model = MakeModelData(info);
  const NumberedCatalog numbers;
  Shown view{page, info};
  DialogDriver driver{view.Dialog()};
  RecordingChannel& projector = view.open.Projector();
  CPjtInterface& connection = view.open.Dialog().Projector();
  std::string textTold;
  MessageBoxes boxes;
  Strings pageReads;
};

// The second entry is chosen; the projector has meanwhile gone over to the third, if there is one.
void RowRules::Expect(const ListRow& row, const RowRule& rule) {
  const std::vector<ListEntry> entries = row.entries.Of(model);
  const std::size_t later = entries.size() > 2 ? 2 : 0;
  const std::string read = Key(*row.read);
  const bool readsBack = rule.then != Plain || (page.refusedIsReadBack && rule.error != 0);
  for (const bool refused : {false, true}) {
    Show(read, entries[0].value, entries[later].value);
    EXPECT_EQ(driver.Selected(row.control), 0);
    connection.SettingText = "before";
    textTold.clear();
    Strings sent = Sent(refused, rule.error, [&] { driver.Choose(row.control, 1); });
    EXPECT_EQ(std::erase_if(sent, [](const auto& text) { return !text.starts_with("Get"); }),
              row.send ? 1U : 0U);
    EXPECT_EQ(textTold, Has(page.tellText, row.control)
                            ? driver.Entries(row.control)[1].toStdString()
                            : std::string(row.send ? "before" : ""));
    Strings reads = rule.then == AlwaysRereads ? pageReads : Strings{};
    if (rule.then == AlwaysReads || (refused && readsBack && reads.empty())) reads = {read};
    EXPECT_EQ(sent, reads);
    EXPECT_EQ(driver.Selected(row.control), reads.empty()                ? 1
                                            : rule.then == ReadsPosition ? entries[later].value
                                                                         : static_cast<int>(later));
  }
  projector.Refuse(read);
  Sent(true, rule.error, [&] { driver.Choose(row.control, 0); });
  EXPECT_EQ(driver.Selected(row.control), 0) << "nothing to go back to";
  projector.Accept(read);
  if (Has(page.stayInUse, row.control)) {
    projector.Refuse(read);
    view.ReadAgain();
    EXPECT_TRUE(driver.IsEnabled(row.control));
    projector.Accept(read);
  } else {
    ExpectUnreadable(read, {row.control});
  }
  if (view.popUp) return;  // shows nothing of before
  int unknown = 0;
  while (PositionOf(entries, unknown) >= 0) ++unknown;
  Show(read, entries[1].value, unknown);
  view.ReadAgain();
  const int position = unknown < std::ssize(entries) ? unknown : -1;
  EXPECT_EQ(driver.Selected(row.control), rule.unknown == NoEntry::Clears       ? -1
                                          : rule.unknown == NoEntry::IsPosition ? position
                                                                                : 1);
}

// Shown is `value`; the projector has meanwhile gone one further.
void RowRules::Expect(const ValueRow& row, const RowRule& rule) {
  const std::string read = Key(row.Reading()), up = Key(row.Stepping(true));
  const bool slides = row.ids.slider != 0;
  const bool asksFirst = FamilyOf(row.Stepping(true).operation) == OperationFamily::PointerStepper;
  const Range range = slides ? SliderRange(row, model) : Range{0, 200};
  const int value = (range.minimum + range.maximum) / 2;
  const auto expectShown = [&](int number, int position) {
    EXPECT_EQ(driver.Text(row.ids.field), QString::number(number));
    if (slides) {
      EXPECT_EQ(driver.SliderAt(row.ids.slider), position);
    }
  };
  for (const bool refused : {false, true}) {
    const bool isRead = !refused || page.refusedIsReadBack;
    for (const std::string& step : {"Dec" + up.substr(3), up}) {
      if (rule.then == OwnSteps) break;
      Show(read, value + row.bias, value + row.bias + 1);
      projector.Answer(step, value + row.bias + 1);  // for steppers that answer with the value
      const int button = step == up ? row.ids.plus : row.ids.minus;
      Strings expected{step};
      if (asksFirst || isRead) expected.insert(asksFirst ? expected.begin() : expected.end(), read);
      EXPECT_EQ(Sent(refused, rule.error, [&] { driver.Click(button); }), expected);
      expectShown(value + isRead, value + isRead);
    }
    if (!slides) continue;
    const int error = rule.then == Stays || rule.then == GoesBack ? 0 : rule.error;
    const auto drag = [&] { driver.Drag(row.ids.slider, range.maximum); };
    if (!refused && rule.then != Stays && rule.then != OwnSteps) {
      Sent(true, error, drag);
      expectShown(value + 1, value + 1);  // where the step has left it
    }
    Show(read, value + row.bias, value + row.bias + 1);
    const Strings sent = Sent(refused, error, drag);
    EXPECT_EQ(std::ranges::count(sent, read), refused && isRead ? 1 : 0);
    const int shown = refused ? value + isRead : range.maximum;
    expectShown(shown, rule.then == Stays ? range.maximum : shown);
  }
  ExpectUnreadable(read, {row.ids.minus, slides ? row.ids.slider : row.ids.plus, row.ids.plus});
  projector.Refuse(read);
  if (rule.then != OwnSteps) {
    const Strings sent = Sent(false, 0, [&] { driver.Click(row.ids.plus); });
    EXPECT_EQ(sent, asksFirst ? Strings{read} : (Strings{up, read})) << "from an unknown value";
    expectShown(value + 1, value + 1);
  }
  view.ReadAgain();
  EXPECT_EQ(driver.Text(row.ids.field), "");
  EXPECT_EQ(driver.IsEnabled(row.ids.field), rule.then != GreysField);
  projector.Accept(read);
  view.ReadAgain();
  EXPECT_TRUE(driver.IsEnabled(row.ids.field));
}

void RowRules::Expect(const CheckRow& row, const RowRule& rule) {
  const std::string read = Key(row.read);
  for (const bool refused : {false, true}) {
    Show(read, 0, 0);
    const Strings sent = Sent(refused, rule.error, [&] { driver.Click(row.control); });
    EXPECT_EQ(std::ranges::count(sent, read), refused ? 1 : 0);
    EXPECT_EQ(driver.Item<QCheckBox>(row.control).isChecked(), !refused);
  }
  projector.Refuse(read);
  Sent(true, 0, [&] { driver.Click(row.control); });
  EXPECT_TRUE(driver.Item<QCheckBox>(row.control).isChecked()) << "nothing to go back to";
  projector.Accept(read);
  ExpectUnreadable(read, {row.control});
}

void RowRules::Expect(const ActionRow& row, const RowRule& rule) {
  if (row.list != 0) driver.Choose(row.list, 5);
  for (const bool refused : {false, true}) {
    Strings sent = Sent(refused, rule.error, [&] { driver.Click(row.control); });
    EXPECT_EQ(sent.front().ends_with(" 5"), row.list != 0) << sent.front();
    sent.erase(sent.begin());
    EXPECT_EQ(sent, rule.then == Rereads && !refused ? pageReads : Strings{});
  }
}

void RowRules::Expect(const ResetRow& row, const RowRule& rule) {
  const Strings rereads = rule.then == AlwaysRereads ? pageReads : Strings{};
  EXPECT_EQ(driver.Selected(row.list), 0);
  const QStringList resets = QString::fromStdString(page.resets).split(' ');
  ASSERT_EQ(driver.Entries(row.list).size(), resets.size());
  for (int i = 0; i < resets.size(); ++i) {
    driver.Choose(row.list, i);
    for (const bool refused : {false, true}) {
      Strings expected = refused ? rereads : pageReads;
      expected.insert(expected.begin(), "Exec" + resets[i].toStdString() + "Reset");
      EXPECT_EQ(Sent(refused, 0, [&] { driver.Click(row.control); }), expected);
    }
  }
  driver.Item<CComboBox>(row.list).Select(-1);
  EXPECT_EQ(Sent(false, 0, [&] { driver.Click(row.control); }), rereads) << "nothing is chosen";
}

TEST_P(RowRules, HoldForEveryRow) {
  projector.Take();
  view.ReadAgain();
  pageReads = projector.Take();
  const PageTable& table = TableOf(page);
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    const int control = ControlOf(table.rows[i]);
    if (!::Has(table, i, model.ModelCode) || Has(page.own, control)) continue;
    SCOPED_TRACE(KeyOf(table.rows[i]));
    const RowRule rule = RuleOf(page, control);
    std::visit([&](const auto& row) { Expect(row, rule); }, table.rows[i]);
  }
}

// The texts of the model tell them, each slider's its own.
TEST_P(RowRules, RangesComeFromTheModel) {
  CModelInfo2 wide = info;
  for (std::size_t i = 0; i < RangeIndex::Count; ++i) {
    wide.RangeText(i) = "0," + std::to_string(1000 + i);
  }
  Shown other(page, wide);
  for (const PageRow& row : TableOf(page).rows) {
    const auto* value = std::get_if<ValueRow>(&row);
    if (value == nullptr || value->ids.slider == 0) continue;
    const int maximum = other.Dialog().Item<QSlider>(value->ids.slider).maximum() + value->bias;
    const int range = RuleOf(page, value->ids.slider).range;
    EXPECT_TRUE(range < 0 ? maximum < 1000 : maximum == 1000 + range) << value->key;
  }
}

INSTANTIATE_TEST_SUITE_P(Pages, RowRules, testing::ValuesIn(kPages),
                         [](const auto& page) { return page.param.name; });

}  // namespace
