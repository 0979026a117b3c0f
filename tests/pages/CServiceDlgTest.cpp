#include <QCheckBox>
#include <QTest>
#include <gtest/gtest.h>

#include "pages/input/CServiceDlg.h"
#include "tests/support/NumberedCatalog.h"
#include "tests/support/PageTables.h"

namespace {

using Strings = std::vector<std::string>;

struct Service {
  explicit Service(int code, const std::string& refused = {}) {
    channel->Refuse(refused);
    projector.SetChannel(channel);
    dialog.projector = &projector;
    dialog.ModelCode = code;
    EXPECT_TRUE(dialog.Create());
    dialog.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
  }

  QCheckBox* Check(int id) const { return qobject_cast<QCheckBox*>(dialog.GetDlgItem(id)); }
  int Shown(int id) const { return Check(id) ? int{Check(id)->isChecked()} : driver.Selected(id); }
  void TurnOn(int id) const { Check(id) ? driver.Click(id) : driver.Choose(id, 1); }
  int Top(int id) const { return dialog.GetDlgItem(id)->y(); }

  std::shared_ptr<RecordingChannel> channel = std::make_shared<RecordingChannel>();
  CPjtInterface projector;
  CServiceDlg dialog{nullptr};
  DialogDriver driver{dialog};
};

const ReadRow kControls[] = {
    {20374, "GetAutoAdjustEnable"},   {20375, "GetIRRemoteFront"},
    {20376, "GetIRRemoteRear"},       {20377, "GetIRRemoteTop"},
    {20378, "GetIRREmoteFreqNormal"}, {20379, "GetIRRemoteFreqHigh"},
    {20381, "GetFocusLock"},
};
const RowsOfModels kModels{{"30 31 41 43 46 51 52 54", "1111110"},
                           {"32 33 36 37 38 39 40 42 45 49 50 53", "1000110"},
                           {"44", "1101111"}};

TEST(ServiceDialog, EachModelShowsAndReadsItsRowsInOrder) {
  const NumberedCatalog catalog;
  for (int code = 28; code <= 56; ++code) {
    SCOPED_TRACE(code);
    const Service service(code);
    const std::string controls = DigitsOf(kModels, code);
    ExpectRows(kControls, controls, service.dialog, service.channel->Take());
    if (controls.empty()) continue;
    const bool fine = (code >= 37 && code <= 45) || code >= 49;
    EXPECT_EQ(service.driver.Entries(20374),
              fine ? (QStringList{"141", "1004", "1005"}) : (QStringList{"141", "142"}));
    EXPECT_EQ(service.driver.Entries(20379), (QStringList{"141", "142"}));
  }
}

TEST(ServiceDialog, TheHeightFollowsThePresentRows) {
  const Service three(32), four(30), five(44);
  const int pitch = four.Top(20379) - four.Top(20378);
  EXPECT_EQ(three.Top(20378), four.Top(20378) - pitch);
  for (const auto& [lower, higher] : {std::pair{&three, &four}, {&four, &five}}) {
    EXPECT_EQ(lower->dialog.height(), higher->dialog.height() - pitch);
    EXPECT_EQ(lower->Top(20380), higher->Top(20380) - pitch) << "Close moves along";
    EXPECT_EQ(lower->dialog.width(), higher->dialog.width());
  }
  EXPECT_EQ(five.Check(20377)->x(), four.Check(20377)->x()) << "Top keeps its place without Rear";
}

TEST(ServiceDialog, AChangeIsSentAndARefusalUndone) {
  struct Case {
    int code, id;
    std::string set, get;
  };
  const Case cases[] = {
      {44, 20374, "SetAutoAdjustEnable", "GetAutoAdjustEnable"},
      {30, 20375, "SetIRFront", "GetIRRemoteFront"},
      {30, 20376, "SetIRRear", "GetIRRemoteRear"},
      {30, 20377, "SetIRTop", "GetIRRemoteTop"},
      {30, 20378, "SetIRRemoteFreqNormal", "GetIRREmoteFreqNormal"},
      {30, 20379, "SetIRRemoteFreqHigh", "GetIRRemoteFreqHigh"},
      {44, 20381, "SetFocusLock", "GetFocusLock"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.set);
    const Service service(c.code);
    service.channel->Take();
    service.TurnOn(c.id);
    EXPECT_EQ(service.channel->Take(), Strings{c.set + " 1"});
    EXPECT_EQ(service.Shown(c.id), 1);

    const Service refusing(c.code, c.set);
    refusing.channel->Take();
    refusing.TurnOn(c.id);
    EXPECT_EQ(refusing.channel->Take(), (Strings{c.set + " 1", c.get}));
    EXPECT_EQ(refusing.Shown(c.id), 0);
    refusing.channel->Refuse(c.get);
    refusing.TurnOn(c.id);
    EXPECT_EQ(refusing.Shown(c.id), 1) << "nothing better is known";

    EXPECT_FALSE(Service(c.code, c.get).driver.IsEnabled(c.id)) << "a failed read";
  }
}

TEST(ServiceDialog, CloseAndEscEndItOnce) {
  Service service(30);
  int ended = 0;
  QObject::connect(&service.dialog, &QDialog::finished, [&ended] { ++ended; });
  service.driver.Click(20380);
  EXPECT_FALSE(service.dialog.isVisible());
  EXPECT_EQ(ended, 1);
  service.dialog.show();
  QTest::keyClick(&service.dialog, Qt::Key_Escape);
  EXPECT_FALSE(service.dialog.isVisible());
}

}  // namespace
