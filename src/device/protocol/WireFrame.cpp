#include "device/protocol/WireFrame.h"

#include <algorithm>
#include <array>

#include <QByteArrayView>

namespace AdvancedControl {

namespace Wire {

namespace {

constexpr std::array<char, 2> kMark{'\xA5', '\x5A'};
constexpr std::size_t kHeader = 6;  // mark, kind, length of the body, sequence number
constexpr std::size_t kCheckSum = 2;

// By kind; kinds count from 1 in the order of the variant.
constexpr std::array<std::size_t, 4> kBodySizes{2, 1, 8, 7};
static_assert(kHeader + *std::ranges::max_element(kBodySizes) + kCheckSum == kMaximumFrame);

void Put(std::string& bytes, std::uint32_t value, int size) {
  for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
    bytes += static_cast<char>(value >> shift & 0xFF);
  }
}

/// Reads numbers from the front of the bytes, which must be long enough.
class Taker {
 public:
  explicit Taker(std::string_view bytes) : bytes_(bytes) {}

  template <typename Number>
  Number Take() {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
      value = value << 8 | static_cast<unsigned char>(bytes_[i]);
    }
    bytes_.remove_prefix(sizeof(Number));
    return static_cast<Number>(value);
  }

 private:
  std::string_view bytes_;
};

std::uint16_t CheckSum(std::string_view bytes) {
  return qChecksum(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

struct BodyWriter {
  std::string& bytes;

  void operator()(const Hello& hello) const {
    Put(bytes, hello.lowest, 1);
    Put(bytes, hello.highest, 1);
  }
  void operator()(const Welcome& welcome) const { Put(bytes, welcome.version, 1); }
  void operator()(const Request& request) const {
    Put(bytes, request.operation, 2);
    Put(bytes, request.code, 2);
    Put(bytes, static_cast<std::uint16_t>(request.first), 2);
    Put(bytes, static_cast<std::uint16_t>(request.second), 2);
  }
  void operator()(const Reply& reply) const {
    Put(bytes, static_cast<std::uint32_t>(reply.status), 1);
    Put(bytes, static_cast<std::uint32_t>(reply.result), 4);
    Put(bytes, static_cast<std::uint16_t>(reply.value), 2);
  }
};

// Parses a frame with a correct check sum.
Frame Parse(std::string_view bytes) {
  const auto kind = static_cast<std::size_t>(static_cast<unsigned char>(bytes[2]));
  Taker header(bytes.substr(4));
  Taker body(bytes.substr(kHeader));
  Frame frame{.sequence = header.Take<std::uint16_t>(), .message = {}};
  if (kind == 1) {
    const auto lowest = body.Take<std::uint8_t>();
    frame.message = Hello{lowest, body.Take<std::uint8_t>()};
  } else if (kind == 2) {
    frame.message = Welcome{body.Take<std::uint8_t>()};
  } else if (kind == 3) {
    Request request;
    request.operation = body.Take<std::uint16_t>();
    request.code = body.Take<std::uint16_t>();
    request.first = body.Take<std::int16_t>();
    request.second = body.Take<std::int16_t>();
    frame.message = request;
  } else {
    Reply reply;
    reply.status = static_cast<Status>(body.Take<std::uint8_t>());
    reply.result = body.Take<std::int32_t>();
    reply.value = body.Take<std::int16_t>();
    frame.message = reply;
  }
  return frame;
}

// Size of the frame that begins here: 0 if none does, nothing if more bytes are needed.
std::optional<std::size_t> FrameSize(std::string_view bytes) {
  const std::size_t marked = std::min(bytes.size(), kMark.size());
  if (!std::equal(kMark.begin(), kMark.begin() + marked, bytes.begin())) return 0;
  if (bytes.size() < 3) return std::nullopt;
  const std::size_t kind = static_cast<unsigned char>(bytes[2]);
  if (kind == 0 || kind > kBodySizes.size()) return 0;
  if (bytes.size() < 4) return std::nullopt;
  const std::size_t body = kBodySizes[kind - 1];
  if (static_cast<unsigned char>(bytes[3]) != body) return 0;
  const std::size_t size = kHeader + body + kCheckSum;
  if (bytes.size() < size) return std::nullopt;
  Taker end(bytes.substr(size - kCheckSum));
  const auto sum = CheckSum(bytes.substr(kMark.size(), size - kMark.size() - kCheckSum));
  return end.Take<std::uint16_t>() == sum ? size : 0;
}

}  // namespace

void Append(std::string& bytes, const Frame& frame) {
  const std::size_t kind = frame.message.index();
  bytes.append(kMark.data(), kMark.size());
  const std::size_t begin = bytes.size();
  Put(bytes, static_cast<std::uint32_t>(kind + 1), 1);
  Put(bytes, static_cast<std::uint32_t>(kBodySizes[kind]), 1);
  Put(bytes, frame.sequence, 2);
  std::visit(BodyWriter{bytes}, frame.message);
  Put(bytes, CheckSum(std::string_view(bytes).substr(begin)), 2);
}

Request MakeRequest(const PjtCommand& command) {
  return {OperationNumber(command.operation), command.code, command.first, command.second};
}

std::optional<PjtCommand> MakeCommand(const Request& request) {
  const auto operation = OperationByNumber(request.operation);
  if (!operation) return std::nullopt;
  return PjtCommand{*operation, request.code, request.first, request.second};
}

std::optional<Frame> Decoder::Next() {
  std::size_t at = 0;
  std::optional<Frame> found;
  while (at < bytes_.size() && !found) {
    const std::string_view rest = std::string_view(bytes_).substr(at);
    const auto size = FrameSize(rest);
    if (!size) break;
    if (*size > 0) found = Parse(rest.substr(0, *size));
    skipped_ += *size > 0 ? 0 : 1;
    at += std::max(*size, std::size_t{1});
  }
  bytes_.erase(0, at);
  return found;
}

}  // namespace Wire

}  // namespace AdvancedControl
