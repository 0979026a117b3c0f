#include <array>
#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include "device/channels/LoggingChannel.h"

namespace {

/// Records which member was called, and returns unusual values.
class Scribe final : public ProjectorChannel {
 public:
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

  std::string called;

 private:
  void Note(const std::string& what) { called += what + "; "; }
};

TEST(ForwardingChannelTest, ForwardsEveryMember) {
  const auto scribe = std::make_shared<Scribe>();
  LoggingChannel channel(std::make_shared<LoggingChannel>(scribe, nullptr), nullptr);
  ProjectorChannel& outer = channel;
  EXPECT_EQ(outer.Execute({PjtOperation::GetMirror}).value, 7);
  outer.Announce(std::array{PjtCommand{PjtOperation::GetMirror}});
  outer.GiveUpAfter(std::chrono::milliseconds(30));
  outer.Abandon();
  EXPECT_EQ(outer.Connection(), ConnectionState::OtherVersion);
  EXPECT_TRUE(outer.Inputs());
  EXPECT_TRUE(outer.UseIdleTime());
  EXPECT_EQ(scribe->called, "execute; announce 1; give up after 30; abandon; inputs; idle; ");
}

}  // namespace
