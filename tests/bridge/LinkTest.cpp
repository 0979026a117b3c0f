// Who has a share, and what is sent when, without a network.

#include <algorithm>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "app/bridge/Publisher.h"
#include "app/bridge/ShareKeeper.h"

namespace {

using namespace std::chrono_literals;
using Role = ShareKeeper::Role;

/// Bridges with the same share at one broker, of which each takes a message at a time.
class Bridges {
 public:
  struct One {
    std::string name;
    std::unique_ptr<ShareKeeper> keeper;
    bool isUp = false;
    bool holds = false;  ///< What its connection is for.
    std::deque<std::function<void()>> inbox{};
  };

  One& Add(const std::string& name) {
    auto& one = all_.emplace_back(std::make_unique<One>());
    one->name = name;
    one->keeper = std::make_unique<ShareKeeper>(name, 30s, now_);
    return *one;
  }

  void Connect(One& one) {
    one.isUp = true;
    one.holds = one.keeper->GetRole() == Role::Holding;
    one.inbox.clear();
    one.keeper->Connected(now_);
    if (holder_)
      Put(one, [this, &one, holder = *holder_] { one.keeper->TakeHolder(holder, now_); });
    if (isOnline_)
      Put(one, [&one, isOnline = *isOnline_] { one.keeper->TakeAvailability(isOnline); });
    Put(one, [this, &one] { one.keeper->TakeHello(now_); });
  }
  /// The broker notices at once, and sends the last will.
  void Kill(One& one) {
    if (one.holds) SetOnline(false);
    one.isUp = false;
  }
  /// Its network breaks, which the broker does not notice.
  void Lose(One& one) {
    one.isUp = false;
    one.keeper->Disconnected();
  }
  void RestartBroker(bool remembers) {
    for (auto& one : all_) {
      if (one->isUp) Lose(*one), lost_.push_back(one.get());
    }
    if (!remembers) holder_.reset(), isOnline_.reset();
  }
  void ConnectAgain() {
    for (One* one : std::exchange(lost_, {})) Connect(*one);
  }

  /// Messages arrive in an order that depends on chance, and roles are followed.
  void Settle() {
    for (int round = 0; round < 400; ++round) {
      One& one = *all_[random_() % all_.size()];
      if (!one.isUp) continue;
      if (!one.inbox.empty()) {
        const auto take = std::move(one.inbox.front());
        one.inbox.pop_front();
        take();
      }
      one.keeper->Tick(now_);
      if ((one.keeper->GetRole() == Role::Holding) != one.holds) {
        one.keeper->Disconnected();
        Connect(one);
      } else if (const auto beat = one.keeper->TakeBeat(now_)) {
        SetOnline(true);
        holder_ = beat;
        for (auto& other : all_) {
          if (other->isUp)
            Put(*other, [this, &other, beat] { other->keeper->TakeHolder(*beat, now_); });
        }
      }
    }
  }
  void Pass(std::chrono::seconds time) {
    for (const auto end = now_ + time; now_ < end;) {
      now_ += 5s;
      Settle();
    }
  }
  std::string Holders() const {
    std::string names;
    for (const auto& one : all_) {
      if (one->isUp && one->keeper->IsSettled()) names += one->name;
    }
    return names;
  }

 private:
  static void Put(One& one, std::function<void()> take) { one.inbox.push_back(std::move(take)); }
  void SetOnline(bool isOnline) {
    isOnline_ = isOnline;
    for (auto& one : all_) {
      if (one->isUp) Put(*one, [&one, isOnline] { one->keeper->TakeAvailability(isOnline); });
    }
  }

  ShareKeeper::Time now_{1h};
  std::vector<std::unique_ptr<One>> all_;
  std::vector<One*> lost_;
  std::optional<Holder> holder_;
  std::optional<bool> isOnline_;
  std::minstd_rand random_{1};
};

TEST(ShareKeeper, OneOfThreeThatStartTogetherWorks) {
  for (int seed = 0; seed < 50; ++seed) {
    Bridges bridges;
    std::vector<Bridges::One*> all;
    for (const char* name : {"a", "b", "c"}) all.push_back(&bridges.Add(name));
    std::rotate(all.begin(), all.begin() + seed % 3, all.end());
    for (Bridges::One* one : all) {
      bridges.Connect(*one);
      if (seed % 2 == 0) bridges.Pass(5s);
    }
    bridges.Pass(60s);
    EXPECT_EQ(bridges.Holders().size(), 1U) << seed;
  }
}

TEST(ShareKeeper, AnotherTakesOverOnlyWhenTheHolderIsGone) {
  Bridges bridges;
  auto& a = bridges.Add("a");
  auto& b = bridges.Add("b");
  bridges.Connect(a);
  bridges.Pass(5s);
  bridges.Connect(b);
  bridges.Pass(300s);
  EXPECT_EQ(bridges.Holders(), "a");
  EXPECT_FALSE(b.keeper->MayAsk(ShareKeeper::Time::max()));

  bridges.Kill(a);
  bridges.Settle();
  EXPECT_EQ(bridges.Holders(), "b") << "by the last will, at once";

  bridges.Connect(a);  // what was killed comes back with the same role
  bridges.Pass(20s);
  EXPECT_EQ(bridges.Holders(), "b");

  bridges.Lose(b);
  bridges.Pass(20s);
  EXPECT_EQ(bridges.Holders(), "");
  bridges.Pass(15s);
  EXPECT_EQ(bridges.Holders(), "a") << "by the silence";
  bridges.Connect(b);
  bridges.Pass(60s);
  EXPECT_EQ(bridges.Holders(), "a") << "b hears that it was replaced";
}

TEST(ShareKeeper, ABrokerThatRestartsKeepsTheHolder) {
  for (const bool remembers : {true, false}) {
    Bridges bridges;
    auto& a = bridges.Add("a");
    bridges.Connect(a);
    bridges.Pass(5s);
    bridges.Connect(bridges.Add("b"));
    bridges.Pass(60s);
    bridges.RestartBroker(remembers);
    bridges.Pass(10s);
    bridges.ConnectAgain();
    bridges.Pass(60s);
    EXPECT_EQ(bridges.Holders(), "a") << remembers;
    EXPECT_EQ(a.keeper->BrokerRemembers(), remembers);
  }
}

TEST(ShareKeeper, AsksWithoutABrokerAfterAWhile) {
  const ShareKeeper::Time begin{1h};
  ShareKeeper keeper("a", 30s, begin);
  EXPECT_FALSE(keeper.MayAsk(begin + 29s));
  EXPECT_TRUE(keeper.MayAsk(begin + 30s));
  for (const char* wrong : {"", "{}", "[]", R"({"instance":"a"})", R"({"instance":"","beat":1})",
                            R"({"instance":"a","beat":-1})", R"({"instance":1,"beat":1})"}) {
    EXPECT_FALSE(ParseHolder(wrong)) << wrong;
  }
  EXPECT_EQ(ParseHolder(HolderMessage({"a", 7})), (Holder{"a", 7}));
}

class Publishing : public testing::Test {
 protected:
  using Kind = Publisher::Kind;

  std::string Sent() { return std::exchange(sent_, {}); }
  void AcknowledgeAll() {
    while (acknowledged_ < number_) publisher_.Sent(++acknowledged_);
  }

  std::string sent_;
  int number_ = 0;
  int acknowledged_ = 0;
  bool isBroken_ = false;
  std::vector<QByteArray> values_{3, "0"};
  Publisher publisher_{3,
                       [this](Kind kind, std::size_t projector) {
                         const QByteArray value =
                             kind == Kind::State ? values_[projector] : QByteArray("d");
                         return BrokerMessage{QByteArray::number(quint64{projector}), value, true};
                       },
                       [this](const BrokerMessage& message) -> std::optional<int> {
                         if (isBroken_) return {};
                         sent_ += (message.topic + '=' + message.payload + ' ').toStdString();
                         return ++number_;
                       }};
};

TEST_F(Publishing, SendsTheLatestOnceAndAnswersFirst) {
  publisher_.RenewAll(Kind::Discovery);
  publisher_.RenewAll(Kind::State);
  values_[1] = "1";
  publisher_.Renew(Kind::State, 1);
  publisher_.Answer({"a", "!"});
  EXPECT_EQ(Sent(), "");
  publisher_.Start();
  EXPECT_EQ(Sent(), "a=! 0=0 1=1 2=0 0=d 1=d 2=d ");
  AcknowledgeAll();
  EXPECT_TRUE(publisher_.IsIdle());
  publisher_.RenewAll(Kind::State);
  EXPECT_EQ(Sent(), "") << "nothing is different";

  publisher_.Stop();
  for (const char* value : {"2", "3", "4"}) {
    values_[2] = value;
    publisher_.Renew(Kind::State, 2);
  }
  publisher_.Start();
  EXPECT_EQ(Sent(), "2=4 ");
  publisher_.Forget(Kind::State);
  EXPECT_EQ(Sent(), "0=0 1=1 2=4 ");
  EXPECT_EQ(publisher_.Counts().at("state"), 7U);
}

TEST_F(Publishing, KeepsWhatCannotBeSentAndFewUnderWay) {
  isBroken_ = true;
  publisher_.Start();
  publisher_.Renew(Kind::State, 0);
  publisher_.Answer({"a", "!"});
  isBroken_ = false;
  publisher_.Start();
  EXPECT_EQ(Sent(), "a=! 0=0 ");
  for (std::size_t i = 0; i < 2 * Publisher::kMostAnswers; ++i) publisher_.Answer({"a", "!"});
  EXPECT_EQ(publisher_.UnderWay(), Publisher::kUnderWay);
  Sent();
  AcknowledgeAll();
  EXPECT_LE(number_, static_cast<int>(Publisher::kMostAnswers + Publisher::kUnderWay))
      << "the oldest were dropped";
  EXPECT_TRUE(publisher_.IsIdle());
}

}  // namespace
