#include <QCheckBox>
#include <QTest>
#include <gtest/gtest.h>

#include "pages/input/CServiceDlg.h"
#include "tests/support/DialogDriver.h"

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
  // What turning a setting on sends.
  Strings TurnOn(int id) const {
    channel->Take();
    Check(id) ? driver.Click(id) : driver.Choose(id, 1);
    return channel->Take();
  }
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
  const struct {
    int code, id;
    std::string set, get;
  } rows[] = {
      {44, 20374, "SetAutoAdjustEnable", "GetAutoAdjustEnable"},
      {30, 20375, "SetIRFront", "GetIRRemoteFront"},
      {30, 20376, "SetIRRear", "GetIRRemoteRear"},
      {30, 20377, "SetIRTop", "GetIRRemoteTop"},
      {30, 20378, "SetIRRemoteFreqNormal", "GetIRREmoteFreqNormal"},
      {30, 20379, "SetIRRemoteFreqHigh", "GetIRRemoteFreqHigh"},
      {44, 20381, "SetFocusLock", "GetFocusLock"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.set);
    const Service service(row.code, row.set);
    EXPECT_EQ(service.TurnOn(row.id), (Strings{row.set + " 1", row.get}));
    EXPECT_EQ(service.Shown(row.id), 0);
    service.channel->Refuse(row.get);
    service.TurnOn(row.id);
    EXPECT_EQ(service.Shown(row.id), 1) << "nothing better is known";
    EXPECT_FALSE(Service(row.code, row.get).driver.IsEnabled(row.id)) << "a failed read";
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
