// What is sent to the broker and when, without a network.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "app/bridge/Publisher.h"

namespace {

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
  AcknowledgeAll();
  publisher_.Forget(Kind::State);
  publisher_.Answer({"a", "!"});
  publisher_.Answer({"b", "!"});
  EXPECT_EQ(Sent(), "0=0 1=1 2=4 a=! b=! ");
  publisher_.Sent(++acknowledged_);
  publisher_.Restart();  // the connection broke
  EXPECT_EQ(Sent(), "");
  publisher_.Start();
  EXPECT_EQ(Sent(), "a=! b=! 2=4 1=1 ") << "what the broker did not confirm";
  acknowledged_ = number_ - 4;
  AcknowledgeAll();
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
