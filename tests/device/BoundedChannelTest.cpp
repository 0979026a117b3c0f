#include <QTimer>
#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "device/Connect.h"
#include "device/channels/BoundedChannel.h"
#include "device/channels/PjLinkChannel.h"
#include "device/channels/TcpChannel.h"
#include "simulator/WireResponder.h"
#include "tests/device/Peer.h"
#include "tests/device/Replies.h"
#include "tests/support/Soon.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr PjtCommand kCommand{PjtOperation::GetMirror};

/// Answers at once, or only when it is opened.
class Gate final : public ProjectorChannel {
 public:
  PjtReply Execute(const PjtCommand&) override {
    const int number = ++executed;
    isOpen_.wait(false);
    std::this_thread::sleep_for(takes);
    ++returned;
    return {.result = answered, .value = static_cast<short>(number), .answered = answered};
  }

  void Announce(std::span<const PjtCommand> reads) override { announced = reads.size(); }
  bool UseIdleTime() override { return ++idled, isOpen_.wait(false), idled < 3; }

  void Open(bool open) {
    isOpen_ = open;
    isOpen_.notify_all();
  }

  std::chrono::milliseconds takes{0};
  std::atomic<int> executed = 0;
  std::atomic<int> returned = 0;
  std::atomic<int> idled = 0;
  std::atomic<std::size_t> announced = 0;
  std::atomic<bool> answered = true;

 private:
  std::atomic<bool> isOpen_ = true;
};

class BoundedChannelTest : public testing::Test {
 protected:
  ~BoundedChannelTest() override { gate_->Open(true); }

  std::shared_ptr<Gate> gate_ = std::make_shared<Gate>();
  const BoundedChannel::Limits limits_{.timeOut = 1s, .retryAfter = 300ms, .tend = 1h};
  std::unique_ptr<BoundedChannel> channel_ = std::make_unique<BoundedChannel>(gate_, limits_);
};

TEST_F(BoundedChannelTest, ASilentProjectorCostsOneTimeOut) {
  gate_->Open(false);
  const auto start = Clock::now();
  const PjtReply first = channel_->Execute(kCommand);
  EXPECT_FALSE(first.answered || first.unsent);
  EXPECT_GE(Clock::now() - start, 1s);
  // By then the retry interval is over, but the first command is still outstanding.
  std::this_thread::sleep_for(350ms);
  EXPECT_TRUE(channel_->Execute(kCommand).unsent);
  EXPECT_EQ(gate_->executed, 1) << "the second fails without being sent";

  gate_->Open(true);
  EXPECT_TRUE(Soon([&] { return channel_->Execute(kCommand).answered; }));
  EXPECT_EQ(gate_->executed, 2) << "the late answer is nobody's";
  EXPECT_TRUE(Soon([&] { return gate_->idled == 3; })) << "then its time is its own";
  gate_->answered = false;
  channel_->Execute(kCommand);
  channel_.reset();
  EXPECT_EQ(gate_.use_count(), 1) << "nothing was under way any more";
}

TEST_F(BoundedChannelTest, ALostCommandStartsTheRetryIntervalToo) {
  std::optional<BoundedChannel> late;
  gate_->answered = false;
  Clock::time_point start;
  do {  // repeats if the machine was too slow
    late.emplace(gate_, BoundedChannel::Limits{.timeOut = 1h, .retryAfter = 1h});
    gate_->executed = 0;
    start = Clock::now();
    EXPECT_EQ(Replies(*late, {kCommand, kCommand}), "? ?");
  } while (Clock::now() - start > 90ms);
  BoundedChannel soon(gate_, {.timeOut = 1h, .retryAfter = 10ms});
  gate_->takes = 110ms;
  EXPECT_EQ(Replies(*late, {kCommand}, 250ms) + Replies(soon, {kCommand}), "??");
  gate_->answered = true;
  EXPECT_EQ(Replies(*late, {kCommand}), "?");
  EXPECT_EQ(gate_->executed, 3) << "a pause has passed for the third, not for second and last";
  late->Abandon();
  EXPECT_EQ(Replies(*late, {kCommand}), "4") << "who tries again is not held back";
  EXPECT_TRUE(Soon([&] { return soon.Execute(kCommand).answered; }));
}

TEST_F(BoundedChannelTest, AbandoningEndsTheWaitAndTheNextCommandIsTried) {
  BoundedChannel patient(gate_, {.timeOut = 1h, .retryAfter = 1h});
  for (const bool twice : {false, true}) {
    gate_->executed = 0;
    gate_->Open(false);
    std::string next;
    for (int i = 0; i <= int{twice}; ++i) {
      QTimer::singleShot(20, [&] {
        EXPECT_EQ(Replies(patient, {kCommand}), "?") << "one waits";
        patient.Announce(std::vector{kCommand});
        patient.Abandon();
        EXPECT_LE(gate_->executed, 1) << "the second has never left";
        if (twice) return;
        gate_->Open(true);
        next = Replies(patient, {kCommand});
      });
      const PjtReply left = patient.Execute(kCommand);
      EXPECT_TRUE(left.abandoned && !left.answered);
    }
    if (twice) QTimer::singleShot(20, [&] { gate_->Open(true); });
    next += Replies(patient, {kCommand});
    EXPECT_EQ(next, twice ? "2" : "23") << "the first's reply is nobody's";
    EXPECT_EQ(gate_->announced, 0U);
  }
}

TEST_F(BoundedChannelTest, ACommandThatWaitsForAnotherInVainIsNotSent) {
  BoundedChannel patient(gate_, {.timeOut = 1h, .retryAfter = 0ms});
  gate_->Open(false);
  QTimer::singleShot(20, [&] { patient.Abandon(); });
  patient.Execute(kCommand);
  patient.GiveUpAfter(20ms);
  EXPECT_TRUE(patient.Execute(kCommand).unsent);
  const QObject alive;
  QTimer::singleShot(0, &alive, [] { ADD_FAILURE() << "the next does not wait again"; });
  EXPECT_TRUE(patient.Execute(kCommand).unsent);
}

TEST_F(BoundedChannelTest, TheStateFollowsAConnectionThatNobodyUses) {
  const auto wire = [](const Peer& peer, std::chrono::milliseconds unused) {
    return std::make_shared<TcpChannel>("127.0.0.1", peer.port,
                                        WireChannel::Limits{.unused = unused});
  };
  const auto pjLink = [](const Peer& peer, std::chrono::milliseconds unused) {
    return std::make_shared<PjLinkChannel>("127.0.0.1", peer.port, "",
                                           PjLinkChannel::Limits{.unused = unused});
  };
  const auto answerOnWire = [](Peer::End& end) {
    Gate device;
    WireResponder responder(device);
    for (auto bytes = end.Receive(); !bytes.empty(); bytes = end.Receive()) {
      end.Send(responder.Receive(bytes));
      if (device.executed > 0) return;
    }
  };
  const auto check = [&](const char* name, const Peer::Behaviour& answer, auto connect,
                         const PjtCommand& command) {
    SCOPED_TRACE(name);
    std::atomic<int> ended = 0;
    const auto listens = [&](Peer::End& end) {
      answer(end);
      end.Listen();
      ++ended;
    };
    const Peer closing(Transport::Tcp, {answer}), listening(Transport::Tcp, {listens});
    const Peer idle(Transport::Tcp, {listens});
    BoundedChannel kept(connect(idle, 1min), {.tend = 5ms});
    EXPECT_TRUE(kept.Execute(command).answered);
    BoundedChannel closed(connect(closing, 1h), {.tend = 5ms});
    EXPECT_TRUE(closed.Execute(command).answered);
    EXPECT_TRUE(Soon([&] { return closed.Connection() == ConnectionState::Unused; }));
    BoundedChannel left(connect(listening, 100ms), {.tend = 5ms});
    EXPECT_TRUE(left.Execute(command).answered);
    EXPECT_TRUE(Soon([&] { return ended == 1; })) << "closed for good, not by half";
    EXPECT_TRUE(Soon([&] { return left.Connection() == ConnectionState::Unused; }));
    EXPECT_TRUE(left.Execute(command).answered) << "connects again";
    EXPECT_EQ(kept.Connection(), ConnectionState::Connected) << "it was used of late";
  };
  check("wire", answerOnWire, wire, kCommand);
  const Peer prompt(Transport::Tcp, {answerOnWire});
  const auto hasty = MakeUnboundedChannel(TcpAddress{"127.0.0.1", prompt.port}, 0ms);
  EXPECT_EQ(Replies(*hasty, {kCommand}), "?") << "nobody answers in no time";
  check("PJLink", Peer::Says({"PJLINK 0\r", "%1POWR=1\r"}, false), pjLink,
        Get(CommandCode::RunningState));
}

TEST_F(BoundedChannelTest, QuittingDoesNotEndTheWait) {
  gate_->Open(false);
  BoundedChannel patient(gate_, {.timeOut = 1h});
  std::string reply;
  QTimer::singleShot(0, [&] { reply = Replies(patient, {kCommand}); });
  QTimer::singleShot(20, &QCoreApplication::quit);
  const std::jthread opener([&] {
    std::this_thread::sleep_for(70ms);
    gate_->Open(true);
  });
  QCoreApplication::exec();
  EXPECT_EQ(reply, "1");
}

TEST_F(BoundedChannelTest, ALongSeriesOfQuickAnswersStillRunsTheEventLoop) {
  BoundedChannel patient(gate_, {.timeOut = 1h});
  gate_->takes = 4ms;
  std::thread([&] { EXPECT_TRUE(patient.Execute(kCommand).answered); }).join();
  bool ran = false;
  const QObject alive;
  QTimer::singleShot(0, &alive, [&] { ran = true; });
  for (int i = 0; i < 40; ++i) EXPECT_TRUE(patient.Execute(kCommand).answered);
  EXPECT_TRUE(ran);
  gate_->takes = 0ms;
  EXPECT_TRUE(Soon([&] {
    QTimer::singleShot(0, &alive, [&] { ran = true; });
    ran = false;
    return patient.Execute(kCommand).answered && !ran;
  })) << "a quick answer does not";
}

TEST_F(BoundedChannelTest, DestructionDoesNotWait) {
  gate_->Open(false);
  auto channel = std::make_unique<BoundedChannel>(gate_, BoundedChannel::Limits{.timeOut = 20ms});
  EXPECT_EQ(Replies(*channel, {kCommand}), "?");
  ASSERT_TRUE(Soon([&] { return gate_->executed == 1; })) << "the worker has it";
  channel.reset();
  EXPECT_EQ(gate_->returned, 0);
  gate_->Open(true);
  EXPECT_TRUE(Soon([&] { return gate_->returned == 1 && gate_.use_count() == 2; }))
      << "the worker lets the inner channel go";
  channel = std::make_unique<BoundedChannel>(gate_);
  EXPECT_TRUE(channel->Execute(kCommand).answered);
  gate_->Open(false);
  EXPECT_TRUE(Soon([&] { return gate_->idled > 0; })) << "its time is its own";
  channel.reset();
}

TEST_F(BoundedChannelTest, DestructionFromInsideTheWaitIsSafe) {
  gate_->Open(false);
  auto channel = std::make_unique<BoundedChannel>(gate_, BoundedChannel::Limits{.timeOut = 1h});
  QTimer timer;
  timer.callOnTimeout([&] {
    if (gate_->executed == 0) return;
    channel.reset();
    gate_->Open(true);
  });
  timer.start(1);
  EXPECT_TRUE(channel->Execute(kCommand).answered);
  EXPECT_EQ(channel, nullptr);
}

}  // namespace
