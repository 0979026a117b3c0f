// Any bytes as replies to the program's end of the wire protocol. A command must get the right
// value or be unanswered, and nothing may wait for ever. Each byte of the input selects what the
// line does next.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include <QIODevice>

#include "device/channels/WireChannel.h"
#include "fuzz/Check.h"

namespace {

std::string_view script;

std::uint8_t Next() {
  if (script.empty()) return 0;
  const auto step = static_cast<std::uint8_t>(script.front());
  script.remove_prefix(1);
  return step;
}

class Line final : public QIODevice {
 public:
  Line() { open(ReadWrite | Unbuffered); }

  bool isSequential() const override { return true; }
  qint64 bytesAvailable() const override { return static_cast<qint64>(incoming_.size()); }
  bool waitForReadyRead(int) override {
    Step();
    return !incoming_.empty();
  }
  bool IsAlive() const { return alive_; }

 protected:
  qint64 readData(char* data, qint64 size) override {
    const std::size_t taken =
        std::min<std::size_t>(incoming_.size(), static_cast<std::size_t>(size));
    incoming_.copy(data, taken);
    incoming_.erase(0, taken);
    return static_cast<qint64>(taken);
  }
  qint64 writeData(const char* data, qint64 size) override {
    asked_.Add({data, static_cast<std::size_t>(size)});
    return size;
  }

 private:
  void Step() {
    if (script.empty()) alive_ = false;
    switch (Next() % 6) {
      case 0:  // sends the right reply
        while (const auto frame = asked_.Next()) {
          Wire::Frame reply{frame->sequence, Wire::Welcome{}};
          if (const auto* request = std::get_if<Wire::Request>(&frame->message)) {
            reply.message =
                Wire::Reply{.result = 1, .value = static_cast<std::int16_t>(request->code)};
          }
          Wire::Append(last_, reply);
        }
        incoming_ = last_;
        break;
      case 1:  // repeats the last reply
        incoming_ = last_ + last_;
        break;
      case 2: {  // noise
        const std::size_t size = std::min<std::size_t>(Next(), script.size());
        incoming_ = script.substr(0, size);
        script.remove_prefix(size);
        break;
      }
      case 3:  // sends a part of the reply
        incoming_ = last_.substr(0, Next());
        break;
      case 4:  // sends a damaged reply
        incoming_ = last_;
        if (!incoming_.empty()) incoming_[Next() % incoming_.size()] ^= 1;
        break;
      default:
        alive_ = false;
    }
  }

  Wire::Decoder asked_;
  std::string last_;
  std::string incoming_;
  bool alive_ = true;
};

class Channel final : public WireChannel {
 public:
  explicit Channel(bool noisy) : WireChannel(noisy ? Medium::Noisy : Medium::Reliable, {}) {}

 protected:
  std::unique_ptr<QIODevice> Open(const QDeadlineTimer&, ConnectionState&) override {
    return std::make_unique<Line>();
  }
  // Ends the line when the input is used up; otherwise the channel would wait for it.
  bool IsAlive(QIODevice& line) const override { return static_cast<Line&>(line).IsAlive(); }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  script = {reinterpret_cast<const char*>(data), size};
  Channel channel(Next() % 2 != 0);
  const auto get = [](int code) {
    return PjtCommand{PjtOperation::Get, static_cast<std::uint16_t>(code)};
  };
  for (int code = 1; code < 200 && !script.empty(); ++code) {
    const std::uint8_t step = Next();
    if (step % 4 == 0) {
      const PjtCommand reads[] = {get(code), get(code + 1), get(code + 2)};
      channel.Announce(reads);
    }
    PjtCommand command = get(code);
    if (step % 8 == 1) command.operation = PjtOperation::Set;
    const PjtReply reply = channel.Execute(command);
    Check(!reply.answered || (reply.result == 1 && reply.value == code));
    Check(reply.answered == (channel.Connection() == ConnectionState::Connected));
  }
  return 0;
}
