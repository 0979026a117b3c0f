#include <memory>
#include <tuple>

#include <QDeadlineTimer>
#include <QIODevice>
#include <gtest/gtest.h>

#include "device/channels/WireChannel.h"
#include "tests/device/Replies.h"

namespace {

using enum ConnectionState;

/// Opens a line that takes no bytes, or gives none although some have come.
class LineFaultChannel final : public WireChannel {
 public:
  LineFaultChannel(bool takesBytes, bool isAlive)
      : WireChannel(Medium::Reliable, {}), takesBytes_(takesBytes), isAlive_(isAlive) {}

 protected:
  std::unique_ptr<QIODevice> Open(const QDeadlineTimer&, ConnectionState&) override {
    return std::make_unique<Line>(takesBytes_);
  }
  bool IsAlive(QIODevice&) const override { return isAlive_; }

 private:
  class Line final : public QIODevice {
   public:
    explicit Line(bool takesBytes) : takesBytes_(takesBytes) { open(ReadWrite | Unbuffered); }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return 1; }
    qint64 bytesToWrite() const override { return takesBytes_ ? 0 : 1; }

   protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override { return size; }

   private:
    const bool takesBytes_;
  };

  const bool takesBytes_;
  const bool isAlive_;
};

TEST(FailingLine, IsGivenUp) {
  for (const auto& [takesBytes, isAlive, state] :
       {std::tuple(false, true, NoAnswer), {false, false, Lost}, {true, true, Lost}}) {
    LineFaultChannel channel(takesBytes, isAlive);
    EXPECT_EQ(Replies(channel, {Get(1)}), "?");
    EXPECT_EQ(channel.Connection(), state);
  }
}

}  // namespace
