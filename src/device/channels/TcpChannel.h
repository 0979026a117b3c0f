#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/channels/WireChannel.h"

namespace AdvancedControl {

/// A channel to a projector that speaks the protocol of docs/wire.md over TCP. Threads as for
/// `WireChannel`.
class PROJECTOR_COMMON_EXPORT TcpChannel final : public WireChannel {
 public:
  /// `host` is a name or an address.
  TcpChannel(std::string host, std::uint16_t port) : TcpChannel(std::move(host), port, {}) {}
  TcpChannel(std::string host, std::uint16_t port, const Limits& limits)
      : WireChannel(Medium::Reliable, limits), host_(std::move(host)), port_(port) {}

 protected:
  std::unique_ptr<QIODevice> Open(const QDeadlineTimer& deadline,
                                  ConnectionState& problem) override;
  bool IsAlive(QIODevice& line) const override;

 private:
  const std::string host_;
  const std::uint16_t port_;
};

}  // namespace AdvancedControl
