#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <sys/types.h>

#include "Namespace.h"
#include "fleet/SerialLine.h"
#include "fleet/SocketAddress.h"

namespace AdvancedControl {

/// A TCP connection or an open serial port, or the attempt at one. Nothing here waits.
class SocketConnection {
 public:
  enum class Stage : std::uint8_t { None, LookingUp, Connecting, Open, Failed };

  SocketConnection() = default;
  ~SocketConnection() { Close(); }
  SocketConnection(const SocketConnection&) = delete;
  SocketConnection& operator=(const SocketConnection&) = delete;

  /// Closes the connection and begins another attempt. `name` is that of the host, if it has to be
  /// looked up.
  void Begin(std::string name, std::uint16_t port);
  /// The same for another address of the name.
  void BeginNext();
  /// How many addresses of the name were tried before the present one.
  std::size_t Tried() const { return tried_; }
  /// The number of the address of the name; `BeginNext` counts on.
  std::size_t AddressNumber() const { return addressNumber_; }
  void SetAddressNumber(std::size_t number) { addressNumber_ = number; }
  /// False if there can be no connection.
  bool Connect(const SocketAddress& address);
  SerialLine::Problem OpenLine(const std::string& device, std::int32_t baud);
  /// False if not all of it could be sent.
  bool Send(std::string_view bytes) const;
  /// As the system's function.
  ssize_t Receive(std::span<char> buffer) const;
  void Close();

  Stage GetStage() const { return stage_; }
  void SetStage(Stage stage) { stage_ = stage; }
  /// Grows with each attempt, so that late events are known.
  std::uint32_t Attempt() const { return attempt_; }
  int File() const { return file_; }
  const std::string& Name() const { return name_; }
  std::uint16_t Port() const { return port_; }

 private:
  int file_ = -1;
  bool isLine_ = false;  ///< A serial port, and not a socket.
  Stage stage_ = Stage::None;
  std::uint32_t attempt_ = 0;
  std::uint16_t port_ = 0;
  std::string name_{};
  std::size_t tried_ = 0;
  std::size_t addressNumber_ = 0;
};

}  // namespace AdvancedControl
