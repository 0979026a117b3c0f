// What the dialog says about refusals, and about actions whose effect cannot be seen.

#include <gmock/gmock.h>

#include "tests/support/DialogDriver.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

struct Case {
  const char* name;
  int tab;
  void (*act)(const DialogDriver& driver);
  const char* refused;  // a command that the projector refuses
  const char* said;
  int marked;  // the row's control
  int boxes = 0;
};

constexpr Case kCases[] = {
    {"step", 1, [](const DialogDriver& page) { page.Click(20135); }, "Inc 0x2003",
     "Not accepted: Brightness +. The projector has 0.", 20136, 1},
    {"list", 1, [](const DialogDriver& page) { page.Choose(20293, 1); }, "Set 0x3304",
     "Not accepted: Active Iris Theater. The projector has Off.", 20293, 1},
    {"memory", 1, [](const DialogDriver& page) { page.Click(21065); }, "SetMyMemory",
     "Not accepted: My Memory Load1.", 21065},
    {"refused without a result", 4, [](const DialogDriver& page) { page.Click(20305); },
     "ExecAutoKeyStone", "Not accepted: Auto Keystone.", 20305},
};

TEST(Outcomes, AreSaidBesideCloseAndMarkedUntilTheNextSuccess) {
  for (const Case& tried : kCases) {
    SCOPED_TRACE(tried.name);
    OpenDialog open(FullModel(5, 30), tried.tab,
                    Answers({{"Get 0x2003", 128}, {"Get 0x2004", 128}}));
    MessageBoxes boxes;
    open.Projector().Refuse(tried.refused);
    tried.act(open.Driver());
    EXPECT_EQ(Said(open.Page()), tried.said);
    EXPECT_EQ(boxes.Take().size(), static_cast<std::size_t>(tried.boxes));
    EXPECT_THAT(Marked(open.Page()), testing::ElementsAre(tried.marked));
    const QWidget& control = *open.Page().GetDlgItem(tried.marked);
    EXPECT_THAT(control.toolTip().toStdString(), HasSubstr(tried.said));
    EXPECT_THAT(control.accessibleDescription().toStdString(), HasSubstr(tried.said));
    open.Projector().Accept(tried.refused);
    tried.act(open.Driver());
    EXPECT_THAT(Marked(open.Page()), IsEmpty());
    EXPECT_EQ(control.toolTip().indexOf(QString::fromUtf8(tried.said)), -1);
  }
}

TEST(Outcomes, OfAnEntryWhoseValueAnotherOneHasToo) {
  CModelInfo2 model = MakeModel(1, 1);
  for (const int value : {0, 1, 1, 2}) AddEntry(model.AspectList, value, "aspect");
  OpenDialog open(model, 1);
  open.Projector().Answer("Get 0x2008", 1);
  for (const int position : {2, 3}) {
    open.Driver().Choose(20108, position);
    EXPECT_EQ(Marked(open.Page()).size(), position == 3) << "it reads 1: " << Said(open.Page());
  }
}

TEST(OutcomesOfPopUps, AreSaidInThePopUp) {
  OpenDialog open(FullModel(5, 30));
  const auto gamma = MakePopUp(PopUp::Gamma, open.Dialog());
  Open(*gamma);
  DialogDriver(*gamma).Click(20336);
  EXPECT_EQ(Said(*gamma), "User Gamma Point 1 reset");
  const auto service = MakePopUp(PopUp::Service, open.Dialog());
  Open(*service);
  const DialogDriver driver(*service);
  for (const char* set : {"SetIRFront", "SetAutoAdjustEnable"}) open.Projector().Refuse(set);
  for (const bool isOn : {false, true}) {
    Answers({{"GetIRRemoteFront", isOn}, {"GetAutoAdjustEnable", isOn}})(open.Projector());
    driver.Choose(20374, 1);
    EXPECT_THAT(Said(*service), HasSubstr(isOn ? "has Enable" : "has Disable")) << "as just read";
    driver.Click(20375);
    EXPECT_THAT(Said(*service),
                HasSubstr(isOn ? "On. The projector has On" : "On. The projector has Off"));
  }
  EXPECT_THAT(Marked(*service), testing::ElementsAre(20374, 20375));
  EXPECT_EQ(Said(open.Page()), "");
  driver.Click(20380);
  EXPECT_FALSE(service->isVisible());
  Open(*service);
  EXPECT_THAT(Marked(*service), IsEmpty()) << "opened again, it has read every row";
}

}  // namespace
