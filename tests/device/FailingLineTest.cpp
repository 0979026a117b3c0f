#include <memory>
#include <tuple>

#include <QDeadlineTimer>
#include <QIODevice>
#include <gtest/gtest.h>

#include "device/channels/WireChannel.h"
#include "tests/device/Replies.h"

namespace {

using enum ConnectionState;

enum class Takes { All, Late, Part };

/// Opens a line that does not take all bytes at once, or gives none although some have come.
class LineFaultChannel final : public WireChannel {
 public:
  LineFaultChannel(Takes takes, bool isAlive)
      : WireChannel(Medium::Reliable, {}), takes_(takes), isAlive_(isAlive) {}

 protected:
  std::unique_ptr<QIODevice> Open(const QDeadlineTimer&, ConnectionState&) override {
    return std::make_unique<Line>(takes_);
  }
  bool IsAlive(QIODevice&) const override { return isAlive_; }

 private:
  class Line final : public QIODevice {
   public:
    explicit Line(Takes takes) : takes_(takes) { open(ReadWrite | Unbuffered); }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return 1; }
    qint64 bytesToWrite() const override { return takes_ == Takes::All ? 0 : 1; }

   protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override {
      return takes_ == Takes::Part ? size - 1 : size;
    }

   private:
    const Takes takes_;
  };

  const Takes takes_;
  const bool isAlive_;
};

TEST(FailingLine, IsGivenUp) {
  for (const auto& [takes, isAlive, state] : {std::tuple(Takes::Late, true, NoAnswer),
                                              {Takes::Late, false, Lost},
                                              {Takes::Part, true, Lost},
                                              {Takes::All, true, Lost}}) {
    LineFaultChannel channel(takes, isAlive);
    EXPECT_EQ(Replies(channel, {Get(1)}), "?");
    EXPECT_EQ(channel.Connection(), state);
  }
}

}  // namespace
