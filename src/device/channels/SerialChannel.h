#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/channels/WireChannel.h"

namespace AdvancedControl {

/// A channel to a projector that speaks the protocol of docs/wire.md on a serial line: 8 data bits,
/// no parity, 1 stop bit. Threads as for `WireChannel`.
class PROJECTOR_COMMON_EXPORT SerialChannel final : public WireChannel {
 public:
  /// `device` is the port's path; `baud` its speed in bits per second.
  SerialChannel(std::string device, std::int32_t baud)
      : SerialChannel(std::move(device), baud, {}) {}
  SerialChannel(std::string device, std::int32_t baud, const Limits& limits)
      : WireChannel(Medium::Noisy, limits), device_(std::move(device)), baud_(baud) {}

 protected:
  std::unique_ptr<QIODevice> Open(const QDeadlineTimer& deadline,
                                  ConnectionState& problem) override;
  bool IsAlive(QIODevice& line) const override;

 private:
  const std::string device_;
  const std::int32_t baud_;
};

}  // namespace AdvancedControl
