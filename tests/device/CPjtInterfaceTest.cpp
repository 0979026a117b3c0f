#include <array>
#include <atomic>
#include <functional>
#include <new>
#include <optional>
#include <tuple>

#include <gtest/gtest.h>

#include "device/CPjtInterface.h"
#include "device/ModelData.h"
#include "device/channels/BoundedChannel.h"
#include "device/channels/LoggingChannel.h"
#include "tests/device/Replies.h"
#include "tests/support/Soon.h"

namespace {

using namespace std::chrono_literals;
using Op = PjtOperation;

/// Gives every command the same reply, or throws, and stores the last command.
struct OneReply final : ProjectorChannel {
  PjtReply Execute(const PjtCommand& command) override {
    last = command;
    MayBreak();
    if (meanwhile) meanwhile();
    return {
        .result = accepted ? AcceptedResult(command.operation) : RefusedResult(command.operation),
        .value = -2};
  }
  void Abandon() override { ++abandoned, MayBreak(); }
  bool UseIdleTime() override { throw std::bad_alloc(); }
  bool TendConnection(std::chrono::milliseconds) override { throw std::bad_alloc(); }
  void Announce(std::span<const PjtCommand>) override { MayBreak(); }
  ConnectionState Connection() const override {
    MayBreak();
    return ConnectionState::Connected;
  }
  std::optional<SourceList> Inputs() override { return MayBreak(), SourceList(); }
  std::optional<PowerState> Power() const override { return PowerState::On; }
  void MayBreak() const {
    if (breaks) throw std::bad_alloc();
  }

  bool accepted = true;
  bool breaks = false;
  int abandoned = 0;
  std::function<void()> meanwhile{};
  PjtCommand last{};
};

TEST(CPjtInterfaceTest, EveryFormBuildsItsCommandAndInterpretsItsReply) {
  static std::atomic<int> shortages = 0;
  std::set_new_handler([] { ++shortages; });
  CPjtInterface p;
  short got = 30;
  auto* const word = reinterpret_cast<unsigned short*>(&got);
  struct Form {
    std::function<int()> call;
    PjtCommand command;
    int accepted;
    int refused;
    int value = 30;  ///< The value of an accepted command.
  };
  const Form forms[] = {
      {[&] { return p.ExecTintReset(); }, {Op::ExecTintReset}, 0, -1},
      {[&] { return p.ExecColorTempGainRReset(); }, {Op::ExecColorTempGainRReset}, 1, 0},
      {[&] { return p.ExecUserGammaPReset(8); }, {Op::ExecUserGammaPReset, 0, 8}, 1, 0},
      {[&] { return p.SetPowerOff(), 0; }, {Op::SetPowerOff}, 0, 0},
      {[&] { return p.GetKeystoneV(&got); }, {Op::GetKeystoneV}, 1, 0, -2},
      {[&] { return p.SetColor(140); }, {Op::SetColor, 0, 140}, 1, 0},
      {[&] { return p.SetMyButton1(-3); }, {Op::SetMyButton1, 0, -3}, 1, 0},
      {[&] { return p.SetAudioM1D(32, 1); }, {Op::SetAudioM1D, 0, 32, 1}, 1, 0},
      {[&] { return p.SetGamma(2), 0; }, {Op::SetGamma, 0, 2}, 0, 0},
      {[&] { return p.SetVideoNR(2, 1), 0; }, {Op::SetVideoNR, 0, 2, 1}, 0, 0},
      {[&] { return p.IncrementKeystoneV(&got); }, {Op::IncrementKeystoneV, 0, 30}, 1, 0, -2},
      {[&] { return p.GetVideoFormat(1, &got); }, {Op::GetVideoFormat, 0, 1}, 1, 0, -2},
      {[&] { return p.IncrementInputSrcVol(3, &got); }, {Op::IncrementInputSrcVol, 0, 3}, 1, 0, -2},
      {[&] { return p.SetVolumeEachSrc(15, 9); }, {Op::SetVolumeEachSrc, 0, 15, 9}, 1, 0},
      {[&] { return p.SetInputSrcBass(3, 130); }, {Op::SetInputSrcBass, 0, 3, 130}, 1, 0},
      {[&] { return p.GetColorTempOffsetB(); }, {Op::GetColorTempOffsetB}, -2, 0},
      {[&] { return p.GetUserGammaPoint(3); }, {Op::GetUserGammaPoint, 0, 3}, -2, 0},
      {[&] { return p.DecrementColorTempGain(2, 7); }, Do(Op::DecrementColorTempGain, 2, 7), -2, 7},
      {[&] { return p.IncrementAutoPowerOff(12); }, {Op::IncrementAutoPowerOff, 0, 12}, -2, 12},
      {[&] { return p.DecrementAutoPowerOff(12); }, {Op::DecrementAutoPowerOff, 0, 12}, -2, 12},
      {[&] { return p.Get(0x2003, 0, &p, word); }, {Op::Get, 0x2003}, 1, 0, -2},
      {[&] { return p.Set(0x2003, 0xFFFE, &p); }, {Op::Set, 0x2003, -2}, 1, 0},
      {[&] { return p.Inc(0x2003, 0, &p); }, {Op::Inc, 0x2003}, 1, 0},
      {[&] { return p.Dec(0x2003, 0, &p); }, {Op::Dec, 0x2003}, 1, 0},
  };
  for (const Form& form : forms) {
    SCOPED_TRACE(OperationName(form.command.operation));
    const auto expectCall = [&](int result, int left) {
      got = 30;
      EXPECT_EQ(form.call(), result);
      EXPECT_EQ(got, left);
    };
    const auto channel = std::make_shared<OneReply>();
    p.SetChannel(channel);
    expectCall(form.accepted, form.value);
    EXPECT_EQ(channel->last, form.command);
    EXPECT_EQ(p.Sent().refused, &form - forms) << "once by each before";
    EXPECT_TRUE(p.Inputs() && p.Power() && p.Connection() == ConnectionState::Connected);
    p.CutOff(true);
    EXPECT_FALSE(p.Inputs() || p.Power());
    p.CutOff(false);
    channel->accepted = false;
    expectCall(form.refused, 30);
    channel->breaks = true;
    expectCall(form.refused, 30);
    BoundedChannel bounded(channel, {.timeOut = 1h, .tend = 1h});
    EXPECT_EQ(Replies(bounded, {form.command}), "?");
    p.Announce({});
    p.AllowRetry();
    EXPECT_EQ(bounded.Connection(), ConnectionState::None);
    EXPECT_FALSE(p.Inputs() || bounded.Inputs() || p.Connection() != ConnectionState::None);
    EXPECT_EQ(shortages.exchange(0), 8) << "each is reported";
    p.SetChannel(nullptr);
    expectCall(form.refused, 30);
    p.Announce({});
    p.AllowRetry();
    EXPECT_FALSE(p.Inputs() || p.Power() || p.Connection() != ConnectionState::None);
  }
  BoundedChannel idle(std::make_shared<OneReply>(), {.timeOut = 1h, .idle = 1ms, .tend = 1ms});
  EXPECT_NE(Replies(idle, {forms[0].command}), "?");
  EXPECT_TRUE(Soon([] { return shortages == 2; })) << "in its idle time and for its connection";
  std::set_new_handler(nullptr), shortages = 0;
}

TEST(CPjtInterfaceTest, AbandonsOnlyWhatWaits) {
  CPjtInterface p;
  const auto channel = std::make_shared<OneReply>(), next = std::make_shared<OneReply>();
  p.SetChannel(channel);
  EXPECT_TRUE(p.Abandon() && channel->abandoned == 0);
  next->meanwhile = [&] { EXPECT_TRUE(p.Abandon()) << "both wait"; };
  channel->meanwhile = [&] {
    p.SetChannel(next);
    EXPECT_EQ(p.SetColor(2), 1);
    p.SetChannel(nullptr);
    EXPECT_TRUE(p.Abandon());
  };
  EXPECT_EQ(p.SetColor(1), 1);
  EXPECT_EQ(std::tuple(channel->abandoned, next->abandoned), std::tuple(2, 1));
}

TEST(CPjtInterfaceTest, HostDataIsBoundedAndMayBeNull) {
  CPjtInterface pjt;
  pjt.CopyData(0, 3, 9600, "", "");
  EXPECT_EQ(pjt.Serial().Port, 3);
  pjt.CopyData(1, 3, 1, "two words", "");
  EXPECT_EQ(pjt.Connection(), ConnectionState::WrongParameters);
  EXPECT_EQ(std::tuple(pjt.ConnectionKind(), pjt.ConnectionNumber(), pjt.ConnectionParameter()),
            std::tuple(1, 3, 1));
  EXPECT_EQ(pjt.Serial(), CComCtrl());
  pjt.SetChannel(std::make_shared<OneReply>());
  EXPECT_EQ(pjt.GetMirror(nullptr), 0);
  EXPECT_EQ(pjt.IncrementKeystoneV(nullptr), 0);
  EXPECT_NE(pjt.Get(0x2003, 0, &pjt, nullptr), 1);

  std::array<char, 70> unterminated{};
  unterminated.fill('x');
  pjt.CopyData(1, 2, 23, "", "secret");
  EXPECT_EQ(pjt.Network().Secret, "secret");
  pjt.CopyData(1, 2, 23, unterminated.data(), nullptr);
  EXPECT_EQ(pjt.ConnectionText1(), std::string(64, 'x'));
  EXPECT_EQ(pjt.ConnectionText2(), "");
  EXPECT_EQ(pjt.Network().Address, pjt.ConnectionText1());
  CPjtInterface copy(pjt);
  copy.CopyData(0, 3, 9600, "", "");
  EXPECT_EQ(copy.Channel(), pjt.Channel()) << "shared, whatever parameters each has";
  EXPECT_EQ(copy.Serial().BaudRate, 9600);
  EXPECT_EQ(copy.Network(), CSocketCtrl());
  EXPECT_EQ(pjt.Network().Port, 23);

  std::array<int, 40> values{};
  values[31] = 9;
  EXPECT_EQ(pjt.CopyGammaData(40, values.data()), 32);
  EXPECT_EQ(pjt.GammaValues().back(), 9);
  EXPECT_EQ(pjt.CopyGammaData(-1, values.data()), 0);
  EXPECT_TRUE(pjt.GammaValues().empty());
  EXPECT_EQ(pjt.CopyAspectData(3, nullptr), 0);
}

TEST(PjtOperationTest, SuccessDependsOnTheFamily) {
  EXPECT_FALSE(IsSuccess(Op::Set, 2)) << "only 1 is success of a generic operation";
  EXPECT_TRUE(IsSuccess(Op::SetColor, -1));
  EXPECT_FALSE(OperationByName("SetBrightnes"));
  for (const Op once : {Op::IncrementKeystoneV, Op::Dec, Op::ExecAutoAdjust}) {
    EXPECT_FALSE(IsAbsolute(once)) << OperationName(once) << " again has another effect";
  }
}

TEST(FormatCommandTest, ShowsCommandAndReply) {
  const PjtReply read{.result = 1, .value = -128};
  const PjtReply refused{.result = 0};
  const PjtReply silent{.result = 0, .answered = false};
  EXPECT_EQ(FormatCommand({Op::SetBrightness, 0, 140}), "SetBrightness(140)");
  EXPECT_EQ(FormatCommand({Op::GetSRSWOW, 0, 3}, &read), "GetSRSWOW(3) = -128");
  EXPECT_EQ(FormatCommand({Op::Get, 0x2003}, &read), "Get 0x2003 = 65408");
  EXPECT_EQ(FormatCommand({Op::Set, 0x3304, 0x10}, &refused), "Set 0x3304 (0x10) refused");
  EXPECT_EQ(FormatCommand({Op::ExecTintReset}, &silent), "ExecTintReset() no answer");
  EXPECT_EQ(FormatCommand({Op::SetVideoNR, 0, 1, 1}, &read), "SetVideoNR(1, 1)");
  const PjtReply lacks{.offered = false}, busy{.busy = true}, pending{.result = 1, .pending = true};
  EXPECT_EQ(FormatCommand({Op::GetMirror}, &lacks), "GetMirror() not offered");
  EXPECT_EQ(FormatCommand({Op::GetMirror}, &busy), "GetMirror() busy");
  EXPECT_EQ(FormatCommand({Op::SetColor, 0, 1}, &pending), "SetColor(1) accepted, not yet so");
}

/// Records which member was called, and returns unusual values.
struct Scribe final : ProjectorChannel {
  PjtReply Execute(const PjtCommand&) override { return Note("execute"), PjtReply{.value = 7}; }
  void Announce(std::span<const PjtCommand> reads) override {
    Note("announce " + std::to_string(reads.size()));
  }
  void GiveUpAfter(std::chrono::milliseconds time) override {
    Note("give up after " + std::to_string(time.count()));
  }
  void Abandon() override { Note("abandon"); }
  ConnectionState Connection() const override { return ConnectionState::OtherVersion; }
  std::optional<SourceList> Inputs() override { return Note("inputs"), SourceList(); }
  bool UseIdleTime() override { return Note("idle"), true; }

  void Note(const std::string& what) { called += what + "; "; }

  std::string called;
};

TEST(ForwardingChannelTest, ForwardsEveryMember) {
  const auto scribe = std::make_shared<Scribe>();
  LoggingChannel channel(std::make_shared<LoggingChannel>(scribe, nullptr), nullptr);
  ProjectorChannel& outer = channel;
  EXPECT_EQ(outer.Execute({PjtOperation::GetMirror}).value, 7);
  outer.Announce(std::array{PjtCommand{PjtOperation::GetMirror}});
  outer.GiveUpAfter(30ms);
  outer.Abandon();
  EXPECT_EQ(outer.Connection(), ConnectionState::OtherVersion);
  EXPECT_TRUE(outer.Inputs());
  EXPECT_TRUE(outer.UseIdleTime());
  EXPECT_EQ(scribe->called, "execute; announce 1; give up after 30; abandon; inputs; idle; ");
}

}  // namespace
