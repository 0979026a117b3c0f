#include <cerrno>

#include <QTabBar>
#include <QTest>
#include <QTimer>

#include "app/profiles/LoopbackSocket.h"
#include "device/Connect.h"
#include "device/channels/BoundedChannel.h"
#include "fleet/ProfileFile.h"
#include "host/CAdvanceDlg.h"
#include "pages/common/CTabPage.h"
#include "simulator/SimulatedProjector.h"
#include "simulator/WireResponder.h"
#include "tests/app/Windows.h"
#include "tests/device/Peer.h"
#include "tests/support/Limited.h"
#include "tests/support/Ports.h"
#include "tests/support/Programs.h"

namespace {

using namespace std::chrono_literals;

constexpr PjtCommand kIsMuted{PjtOperation::Get, 0x2002};
constexpr char kName[] = "Projector 5-30";

QString CurrentInput(const CAdvanceDlg& dialog) {
  return dialog.Page(PageId::Status).GetDlgItem(20009)->property("text").toString();
}

bool ComesToShowItsInput(CAdvanceDlg& dialog) {
  QTimer again;  // a slow machine may have missed an answer
  again.callOnTimeout([&dialog] { QTest::keyClick(&dialog, Qt::Key_F5); });
  again.start(5s);
  return Soon([&dialog] { return CurrentInput(dialog) == "RGB1"; });
}

class SimulatorTest : public testing::Test {
 protected:
  QString Profiles() const { return folder_.filePath("real.json"); }

  ProjectorAddress Address(const char* transport) {
    return ParseAddress(simulator_->Address(transport).toStdString(), "secret");
  }

  std::string Control(const char* line) const { return simulator_->Control(line); }

  QTemporaryDir folder_;
  const QString port_ = QString::number(LastingPort());
  std::optional<SimulatorProcess> simulator_{
      std::in_place, QStringList{"--projector", kName, "--serial", "--control", "0", "--password",
                                 "secret", "--port", port_, "--write-profiles", Profiles()}};
};

TEST_F(SimulatorTest, OneProjectorIsReachableOverAllConnectionsAndRecoversFromLineFaults) {
  using enum ConnectionState;
  const auto tcp = MakeChannel(Address("tcp"));
  EXPECT_EQ(tcp->Execute({PjtOperation::Set, 0x2001, 9999}).result, 0) << "a refusal is an answer";
  EXPECT_EQ(tcp->Connection(), Connected);
  std::int16_t mute = 0;
  const std::tuple<const char*, const char*, ConnectionState> cases[] = {
      {"tcp", "1 trickle", Connected},  {"tcp", "* late 100", Connected},
      {"tcp", "1 silent", NoAnswer},    {"tcp", "1 garbage", NotUnderstood},
      {"tcp", "1 cut 7", Lost},         {"pjlink", "1 trickle", Connected},
      {"pjlink", "1 silent", NoAnswer}, {"pjlink", "1 garbage", NoAnswer},
      {"pjlink", "1 cut 7", Lost},      {"serial", "1 late 900", NoAnswer},
      {"serial", "1 silent", NoAnswer}, {"serial", "1 garbage", NoAnswer},
      {"serial", "1 cut 7", NoAnswer}};
  for (const auto& [transport, fault, state] : cases) {
    SCOPED_TRACE(testing::Message() << transport << ' ' << fault);
    mute ^= 1;
    ASSERT_TRUE(tcp->Execute({PjtOperation::SetMute, 0, mute}).answered);
    const auto line = MakeUnboundedChannel(Address(transport));
    BoundedChannel channel(line, {.timeOut = 10s, .retryAfter = 0ms});
    EXPECT_EQ(channel.Execute(kIsMuted).value, mute);
    EXPECT_EQ(Control(fault), "ok");
    if (state == NoAnswer) line->GiveUpAfter(300ms);
    const PjtReply reply = channel.Execute(kIsMuted);
    line->GiveUpAfter(1500ms);
    EXPECT_EQ(ConnectionStateText(channel.Connection()), ConnectionStateText(state));
    EXPECT_EQ(reply.answered, state == Connected);
    EXPECT_EQ(reply.value, reply.answered ? mute : 0);
    EXPECT_EQ(Control("* none"), "ok");
    EXPECT_TRUE(channel.Execute(kIsMuted).answered);
  }
  EXPECT_EQ(Control("1 late"),
            "error: faults are none, refuse, fail-read, silent, late "
            "MILLISECONDS, cut BYTES, garbage, trickle");
  EXPECT_EQ(Control("2 none"), "error: no projector '2'; there are 1 to 1, and *");
}

TEST_F(SimulatorTest, TheListShowsTheStateOfEveryConnection) {
  auto profiles = ReadProfileList(Profiles()).profiles;
  profiles.push_back(profiles[1]);
  profiles[3].name = "wrong password";
  profiles[3].connection.secret = "wrong";
  profiles.push_back({.name = "simulated", .model = profiles[0].model, .connection = {}});
  // The line has a name of its own: after the simulator, its terminal may become another program's.
  const QString line = folder_.filePath("line");
  ASSERT_TRUE(QFile::link(QString::fromStdString(profiles[2].connection.address), line));
  profiles[2].connection.address = line.toStdString();
  ShownWindow window(profiles, {.interval = 200ms, .longestPause = 200ms, .soonest = 200ms});
  const auto& model = window.findChild<ProjectorView*>()->Model();
  const auto comesTo = [&model](int row, const QString& state) {
    const auto shown = [&] { return model.index(row, ProjectorColumns::State).data(); };
    const auto isSo = [&] { return shown().toString() == state; };
    EXPECT_TRUE(Soon(isSo)) << row << ": " << shown().toString().toStdString();
  };
  for (const int row : {0, 1, 2, 4}) comesTo(row, "OK");
  comesTo(3, "Wrong password");
  for (const int row : {0, 1, 2})
    EXPECT_EQ(model.index(row, ProjectorColumns::Source).data(), "RGB1") << row;
  window.OpenDialog(1);
  comesTo(1, "OK · open");
  EXPECT_TRUE(ComesToShowItsInput(*window.Dialog(1)));
  window.Dialog(1)->close();
  window.Session(4)->Simulator().SetValue(SettingId::ErrorStatus, 4);
  comesTo(4, "Error");

  EXPECT_TRUE(QFile::remove(line));
  simulator_.reset();
  for (const int row : {0, 1, 2}) comesTo(row, "No answer");
  simulator_.emplace(QStringList{"--projector", kName, "--port", port_});
  comesTo(0, "OK");
}

TEST_F(SimulatorTest, ADialogUsesTheInputsThatTheProjectorReports) {
  CModelInfo2 model = ModelInfoOf(ReadProfileList(Profiles()).profiles[1]);
  ASSERT_EQ(model.MySourceList.Size(), 0);
  model.ConnectionTexts1[0] = MakeNameSlot("pjlink://127.0.0.1");
  EXPECT_EQ(Control("1 late 60"), "ok");
  CAdvanceDlg dialog;
  dialog.CopyData(&model, 0);
  ASSERT_TRUE(dialog.Create());
  dialog.findChild<QTabBar*>()->setCurrentIndex(1);
  EXPECT_EQ(dialog.ShownPage()->GetDlgItem(20134)->toolTip(),
            "The projector does not offer this setting over this connection.");
  dialog.findChild<QTabBar*>()->setCurrentIndex(0);
  EXPECT_TRUE(ComesToShowItsInput(dialog));
  CAdvanceDlg later;
  later.CopyData(&model, 0);
  later.Projector().SetChannel(dialog.Projector().Channel());
  ASSERT_TRUE(later.Create());
  EXPECT_EQ(CurrentInput(later), "RGB1") << "known from the start";
}

TEST(SimulatorPorts, AreOpenedOrGiveTheReason) {
  const quint16 port = LastingPort();
  const int held = LoopbackSocket::Listen(port);
  EXPECT_EQ(LoopbackSocket::Listen(port), -1);
  EXPECT_EQ(errno, EADDRINUSE);
  close(held);
  const Limited none(RLIMIT_NOFILE, 0);
  EXPECT_EQ(LoopbackSocket::Listen(0), -1);
  EXPECT_EQ(errno, EMFILE);
}

TEST(Dialog, ConnectsByItselfAndNeedsAtMostTwoRoundTripsPerPage) {
  for (const auto& [type, code] :
       {std::pair{1, 0}, {2, 6}, {3, 10}, {4, 22}, {5, 30}, {5, 42}, {5, 54}}) {
    CModelInfo2 model = FullModel(type, code);
    SimulatedProjector projector(DescribeModel(MakeModelData(model)));
    std::atomic<int> askedAtOnce = 0;
    const Peer peer(Transport::Tcp, {[&](Peer::End& end) {
                      WireResponder responder(projector);
                      for (auto said = end.Receive(); !said.empty(); said = end.Receive()) {
                        ++askedAtOnce;
                        end.Send(responder.Receive(said));
                      }
                    }});
    CAdvanceDlg dialog;
    model.ConnectionKinds[0] = 1;
    model.ConnectionParameters[0] = peer.port;
    model.ConnectionTexts1[0] = MakeNameSlot("127.0.0.1");
    dialog.CopyData(&model, 0);
    EXPECT_EQ(dialog.Projector().Connection(), ConnectionState::Unused);
    ASSERT_TRUE(dialog.Create());
    auto& tabs = *dialog.findChild<QTabBar*>();
    for (int tab = 0; tab < tabs.count(); ++tab) {
      tabs.setCurrentIndex(tab);
      EXPECT_GE(askedAtOnce, 1);
      EXPECT_LE(askedAtOnce.exchange(0), 2) << NameOf(model) << ", tab " << tab;
    }
    EXPECT_EQ(dialog.Projector().Sent().unanswered, 0);
  }
}

struct Unanswered final : ProjectorChannel {
  PjtReply Execute(const PjtCommand&) override { return {.answered = false}; }
  ConnectionState Connection() const override { return state; }
  ConnectionState state{};
};

TEST(Dialog, SaysAtOnceWhyThereIsNoAnswer) {
  using enum ConnectionState;
  CModelInfo2 model = FullModel(5, 30);
  model.ConnectionKinds[0] = 1;
  model.ConnectionParameters[0] = 70'000;
  for (const auto& [state, text] : std::initializer_list<std::pair<ConnectionState, const char*>>{
           {WrongParameters, "The connection parameters of the projector are wrong"},
           {NameUnknown, "The address of the projector is not known"},
           {NotReachable, "The projector cannot be reached"},
           {NoAnswer, "No answer from the projector"},
           {Lost, "The connection to the projector was lost"},
           {NotUnderstood, "The answers of the projector are not understood"},
           {OtherVersion, "The projector uses another version of the protocol"},
           {PasswordRequired, "The password of the projector is missing or wrong"}}) {
    CAdvanceDlg dialog;
    dialog.CopyData(&model, 0);
    const auto channel = std::make_shared<Unanswered>();
    channel->state = state;
    if (state != WrongParameters) dialog.Projector().SetChannel(channel);
    ASSERT_TRUE(dialog.Create());
    const auto labels = dialog.findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::count(labels, QString(text), &QLabel::text)) << text;
  }
}

}  // namespace
