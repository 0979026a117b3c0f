#include <tuple>

#include <QCheckBox>
#include <QTest>
#include <gtest/gtest.h>

#include "pages/input/CServiceDlg.h"
#include "tests/support/DialogDriver.h"

namespace {

using Strings = std::vector<std::string>;

struct Service {
  explicit Service(int code) {
    projector.SetChannel(channel);
    dialog.projector = &projector;
    dialog.ModelCode = code;
    EXPECT_TRUE(dialog.Create());
    dialog.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
  }

  QCheckBox* Check(int id) const { return qobject_cast<QCheckBox*>(dialog.GetDlgItem(id)); }
  int Shown(int id) const { return Check(id) ? int{Check(id)->isChecked()} : driver.Selected(id); }
  int Top(int id) const { return dialog.GetDlgItem(id)->y(); }

  std::shared_ptr<RecordingChannel> channel = std::make_shared<RecordingChannel>();
  CPjtInterface projector;
  CServiceDlg dialog{nullptr};
  DialogDriver driver{dialog};
};

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

TEST(ServiceDialog, ARefusalIsSilentlyUndone) {
  using Case = std::tuple<int, int, std::string>;
  for (const auto& [code, id, get] :
       {Case{44, 20374, "GetAutoAdjustEnable"}, Case{30, 20375, "GetIRRemoteFront"},
        Case{30, 20376, "GetIRRemoteRear"}, Case{30, 20377, "GetIRRemoteTop"},
        Case{30, 20378, "GetIRREmoteFreqNormal"}, Case{30, 20379, "GetIRRemoteFreqHigh"},
        Case{44, 20381, "GetFocusLock"}}) {
    const Service service(code);
    service.channel->RefuseChanges(true);
    for (const bool known : {true, false}) {
      if (!known) service.channel->Refuse(get);
      service.channel->Take();
      service.Check(id) ? service.driver.Click(id) : service.driver.Choose(id, 1);
      const Strings sent = service.channel->Take();
      EXPECT_EQ(sent.back(), get);
      EXPECT_EQ(sent.size(), 2U);
      EXPECT_EQ(service.Shown(id), known ? 0 : 1) << get;
    }
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
