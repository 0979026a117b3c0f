// Who has a share, without a network: bridges at a broker, in every order of what may happen.

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "app/bridge/ShareKeeper.h"

namespace {

using namespace std::chrono_literals;
using Role = ShareKeeper::Role;

constexpr std::chrono::milliseconds kTakeover = 3s;

/// Bridges with the same share at one broker. A bridge takes one message at a time.
class Bridges {
 public:
  using Message = std::function<void(ShareKeeper&)>;
  struct One {
    std::string name{};
    std::unique_ptr<ShareKeeper> keeper{};
    bool isUp = false;   ///< As the broker sees it.
    bool holds = false;  ///< What its connection is for.
    std::deque<Message> inbox{};
  };

  explicit Bridges(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      One& one = all_.emplace_back();
      one.name = static_cast<char>('a' + i);
      StartAgain(one);
    }
  }

  /// What may happen to a bridge.
  using Event = void (Bridges::*)(One& one);
  void Do(Event event, std::size_t which) { (this->*event)(all_[which]); }

  void Take(One& one) {
    if (one.inbox.empty()) return;
    const auto take = one.inbox.front();
    one.inbox.pop_front();
    take(*one.keeper);
  }
  /// It takes a message that comes again.
  void Repeat(One& one) {
    if (!one.inbox.empty()) one.inbox.front()(*one.keeper);
  }
  void Tick(One& one) {
    one.keeper->Tick(now_);
    const bool holds = one.keeper->GetRole() == Role::Holding;
    if (one.holds != holds) ++changes_;
    if (std::exchange(one.holds, holds) != holds || !one.isUp) {
      one.keeper->Disconnected();
      Connect(one);
    } else if (const auto claim = one.keeper->TakeBeat(now_)) {
      SetOnline(true);
      Publish(*claim);
    }
  }
  /// Its connection breaks, what is under way is lost, and the broker sends the last will.
  void Break(One& one) {
    const bool hasWill = one.isUp && one.holds;
    Lose(one);
    if (hasWill) SetOnline(false);
  }
  /// It does nothing while the others take over. Then it first does what was due.
  void Hang(One& one) {
    Pass(2 * kTakeover, &one);
    if (one.isUp) Tick(one);
  }
  /// It hangs until the broker gives its connection up. What has come before is still taken.
  void Lapse(One& one) {
    Hang(one);
    const auto came = std::move(one.inbox);
    Break(one);
    for (const auto& take : came) take(*one.keeper);
  }
  void Crash(One& one) { Break(one), StartAgain(one); }
  void End(One& one) {
    if (const auto claim = one.keeper->GiveUp()) Publish(*claim), SetOnline(false);
    StartAgain(one);
  }

  /// Time, in which all work but one that hangs.
  void Pass(std::chrono::milliseconds time, const One* hangs = nullptr) {
    for (const auto end = now_ + time; now_ < end;) {
      now_ += 250ms;
      for (One& one : all_) {
        if (&one != hangs) Work(one);
      }
    }
  }
  /// Takes what has come, and does what is due.
  void Work(std::size_t which) { Work(all_[which]); }
  void RestartBroker(bool remembers) {
    for (One& one : all_) Lose(one);
    if (!remembers) claim_ = isOnline_ = nullptr;
  }
  /// The last will of a connection that nobody has any more.
  void SendLateWill() { SetOnline(false); }
  void Stall(std::chrono::milliseconds time) { now_ += time; }

  std::string Holders() const {
    std::string names;
    for (const One& one : all_) {
      if (one.keeper->IsSettled()) names += one.name.front();
    }
    return names;
  }
  /// How often a bridge has changed its role.
  int Changes() const { return changes_; }
  const ShareKeeper& Keeper(std::size_t which) const { return *all_[which].keeper; }
  ShareKeeper::Time Now() const { return now_; }

 private:
  /// Starts a bridge again. Its name changes, but sorts among the others as before.
  void StartAgain(One& one) {
    one.name += '\'';
    one.keeper = std::make_unique<ShareKeeper>(one.name, kTakeover, now_);
    one.holds = one.isUp = false;
    one.inbox.clear();
  }
  void Connect(One& one) {
    one.isUp = true;
    one.inbox.clear();
    one.keeper->Connected();
    for (const auto& retained : {claim_, isOnline_}) {
      if (retained) one.inbox.push_back(retained);
    }
    one.inbox.emplace_back([](ShareKeeper& keeper) { keeper.TakeHello(); });
  }
  void TellAll(const Message& message) {
    for (One& one : all_) {
      if (one.isUp) one.inbox.push_back(message);
    }
  }
  void SetOnline(bool isOnline) {
    TellAll(isOnline_ = [isOnline](ShareKeeper& keeper) { keeper.TakeAvailability(isOnline); });
  }
  void Publish(const Claim& claim) {
    TellAll(claim_ = [claim](ShareKeeper& keeper) { keeper.TakeClaim(claim); });
  }
  void Work(One& one) {
    while (!one.inbox.empty()) Take(one);
    Tick(one);
  }
  static void Lose(One& one) {
    one.isUp = false;
    one.inbox.clear();
    one.keeper->Disconnected();
  }
  ShareKeeper::Time now_{1h};
  std::deque<One> all_;
  Message claim_;     ///< The retained one, or null.
  Message isOnline_;  ///< The same.
  int changes_ = 0;
};

constexpr Bridges::Event kEvents[] = {&Bridges::Take,  &Bridges::Repeat, &Bridges::Tick,
                                      &Bridges::Break, &Bridges::Hang,   &Bridges::Lapse,
                                      &Bridges::Crash, &Bridges::End};

/// Who holds after a while, from when on nothing changes; a text in brackets if it does.
std::string Fate(Bridges& bridges) {
  bridges.Pass(3 * kTakeover);
  const std::string holders = bridges.Holders();
  const int changes = bridges.Changes();
  bridges.Pass(3 * kTakeover);
  return bridges.Changes() == changes && bridges.Holders() == holders ? holders : "(unsteady)";
}

TEST(ShareKeeper, TwoBridgesAgreeAfterEveryShortHistory) {
  constexpr int kSteps = 3;
  constexpr std::size_t kChoices = 2 * std::size(kEvents);
  std::size_t count = 1;
  for (int i = 0; i < kSteps; ++i) count *= kChoices;
  for (const bool hasHolder : {false, true}) {
    for (std::size_t history = 0; history < count; ++history) {
      Bridges bridges(2);
      if (hasHolder) bridges.Pass(kTakeover);
      std::string told;
      for (std::size_t i = 0, rest = history; i < kSteps; ++i, rest /= kChoices) {
        const auto event = rest % kChoices;
        bridges.Do(kEvents[event / 2], event % 2);
        told += ' ' + std::to_string(event / 2) + (event % 2 == 0 ? 'a' : 'b');
      }
      const std::string fate = Fate(bridges);
      ASSERT_EQ(fate.size(), 1U) << fate << " after" << told << ", " << hasHolder;
    }
  }
}

TEST(ShareKeeper, ThreeBridgesAgreeAfterLongHistories) {
  for (unsigned seed = 1; seed <= 2000; ++seed) {
    std::minstd_rand random(seed);
    Bridges bridges(3);
    for (int i = 0; i < 100; ++i) {
      constexpr unsigned kRare = 50;
      const auto chance = static_cast<unsigned>(random() % kRare);
      const auto event = chance < std::size(kEvents) ? kEvents[chance]
                         : chance % 2 == 0           ? &Bridges::Take
                                                     : &Bridges::Tick;
      bridges.Do(event, random() % 3);
      bridges.Stall(std::chrono::milliseconds(random() % 300));
    }
    const std::string fate = Fate(bridges);
    ASSERT_EQ(fate.size(), 1U) << fate << ' ' << seed;
  }
}

TEST(ShareKeeper, BridgesThatAreOnlySlowKeepTheirRoles) {
  std::minstd_rand random(1);
  Bridges bridges(3);
  bridges.Pass(kTakeover);
  const std::string holder = bridges.Holders();
  const int changes = bridges.Changes();
  for (int i = 0; i < 2000; ++i) {
    // The holder is late by less than the takeover; the others hang for any time.
    bridges.Stall(std::chrono::milliseconds(random() % 1500));
    bridges.Work(static_cast<std::size_t>(holder.front() - 'a'));
    if (random() % 4 == 0) bridges.Work(random() % 3);
  }
  EXPECT_EQ(bridges.Holders(), holder);
  EXPECT_EQ(bridges.Changes(), changes);
}

TEST(ShareKeeper, AnotherTakesOverWhenTheHolderIsGone) {
  for (const auto& [event, delay] :
       {std::pair(&Bridges::End, 250ms), std::pair(&Bridges::Crash, 750ms)}) {
    Bridges bridges(2);
    for (int i = 0; i < 4; ++i) bridges.Work(0);
    bridges.Pass(5 * kTakeover);
    ASSERT_EQ(bridges.Holders(), "a");
    EXPECT_FALSE(bridges.Keeper(1).MayAsk(ShareKeeper::Time::max()));
    bridges.Do(event, 0);
    bridges.Pass(delay);
    EXPECT_TRUE(bridges.Keeper(1).MayAsk(bridges.Now())) << "long before the silence";
  }
}

TEST(ShareKeeper, ABrokerThatRestartsKeepsTheHolder) {
  for (const bool remembers : {true, false}) {
    Bridges bridges(2);
    bridges.Pass(kTakeover);
    const std::string holder = bridges.Holders();
    bridges.RestartBroker(remembers);
    EXPECT_EQ(Fate(bridges), holder) << remembers;
    EXPECT_EQ(bridges.Keeper(holder == "a" ? 0 : 1).BrokerRemembers(), remembers);
  }
}

TEST(ShareKeeper, ALateLastWillChangesNothing) {
  Bridges bridges(2);
  for (int i = 0; i < 4; ++i) bridges.Work(0);
  bridges.Pass(kTakeover);
  const int changes = bridges.Changes();
  bridges.SendLateWill();
  bridges.Work(1);  // before the holder
  bridges.Pass(3 * kTakeover);
  EXPECT_EQ(bridges.Changes(), changes);
}

TEST(ShareKeeper, TellsWhoClaimedTheShareBeforeAtOnce) {
  const ShareKeeper::Time now{1h};
  ShareKeeper keeper("b", kTakeover, now);
  keeper.Connected();
  keeper.TakeClaim({.term = 1, .instance = "a", .beat = 1, .isGivenUp = true});
  keeper.TakeHello();
  keeper.TakeHello();
  EXPECT_EQ(keeper.TakeBeat(now), (Claim{.term = 2, .instance = "b", .beat = 1}));
  EXPECT_FALSE(keeper.TakeBeat(now)) << "not yet";
  keeper.TakeClaim({.term = 1, .instance = "a", .beat = 2});
  EXPECT_EQ(keeper.TakeBeat(now), (Claim{.term = 2, .instance = "b", .beat = 2}));
  EXPECT_FALSE(keeper.TakeOtherHello("c"));
  EXPECT_TRUE(keeper.TakeOtherHello("a"));
  EXPECT_FALSE(keeper.TakeOtherHello("a")) << "once";
}

TEST(ShareKeeper, AsksWithoutABrokerAfterAWhile) {
  const ShareKeeper::Time begin{1h};
  ShareKeeper keeper("a", 30s, begin);
  EXPECT_FALSE(keeper.MayAsk(begin + 29s));
  EXPECT_TRUE(keeper.MayAsk(begin + 30s));
  for (const char* wrong :
       {"", "{}", "[]", R"({"instance":"a"})", R"({"instance":"","term":1,"beat":1})",
        R"({"instance":"a","beat":1})", R"({"instance":"a","term":1,"beat":-1})",
        R"({"instance":1,"term":1,"beat":1})"}) {
    EXPECT_FALSE(ParseClaim(wrong)) << wrong;
  }
  for (const Claim& claim : {Claim{3, "a", 7, false}, Claim{3, "a", 8, true}}) {
    EXPECT_EQ(ParseClaim(ClaimMessage(claim)), claim);
  }
}

}  // namespace
