#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"

namespace AdvancedControl {

/// The frames that a program and a projector exchange over TCP and serial lines; docs/wire.md
/// describes every byte. Bytes are kept in `std::string`. The functions may be called from any
/// thread, a `Decoder` from one thread at a time.
namespace Wire {

inline constexpr std::uint8_t kVersion = 1;
inline constexpr std::uint16_t kDefaultPort = 7240;
inline constexpr std::size_t kMaximumFrame = 16;

/// The versions that the program supports.
struct Hello {
  std::uint8_t lowest = kVersion;
  std::uint8_t highest = kVersion;

  friend bool operator==(const Hello&, const Hello&) = default;
};

/// The version that the projector chose; 0 for none.
struct Welcome {
  std::uint8_t version = kVersion;

  friend bool operator==(const Welcome&, const Welcome&) = default;
};

struct Request {
  std::uint16_t operation = 0;  ///< The operation's number; may be unknown here.
  std::uint16_t code = 0;
  std::int16_t first = 0;
  std::int16_t second = 0;

  friend bool operator==(const Request&, const Request&) = default;
};

enum class Status : std::uint8_t {
  Answered = 0,  ///< `result` and `value` are the projector's, also for a refusal.
  UnknownOperation = 1,
  Unanswered = 2,  ///< The projector's internals did not answer.
  NoHello = 3,     ///< A request came before a version was agreed.
};

struct Reply {
  Status status = Status::Answered;
  std::int32_t result = 0;
  std::int16_t value = 0;

  friend bool operator==(const Reply&, const Reply&) = default;
};

/// A reply carries the sequence number of its request, a welcome that of its hello.
struct Frame {
  std::uint16_t sequence = 0;
  std::variant<Hello, Welcome, Request, Reply> message;

  friend bool operator==(const Frame&, const Frame&) = default;
};

/// Appends the frame's bytes, at most `kMaximumFrame`, to `bytes`.
PROJECTOR_COMMON_EXPORT void Append(std::string& bytes, const Frame& frame);

PROJECTOR_COMMON_EXPORT Request MakeRequest(const PjtCommand& command);
/// Nothing if no operation has that number.
PROJECTOR_COMMON_EXPORT std::optional<PjtCommand> MakeCommand(const Request& request);

/// Finds frames in bytes that arrive in pieces of any size. Bytes that are not part of a frame are
/// skipped one at a time, so that a frame after noise is found.
class PROJECTOR_COMMON_EXPORT Decoder {
 public:
  void Add(std::string_view bytes) { bytes_.append(bytes); }

  /// The next frame, or nothing if none is complete yet. The decoder then holds fewer bytes than
  /// the longest frame has.
  std::optional<Frame> Next();

  /// Number of bytes skipped so far.
  std::size_t Skipped() const { return skipped_; }

 private:
  std::string bytes_;
  std::size_t skipped_ = 0;
};

}  // namespace Wire

}  // namespace AdvancedControl
