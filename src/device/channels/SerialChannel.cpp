#include "device/channels/SerialChannel.h"

#include <QEventLoop>
#include <QSerialPort>

namespace AdvancedControl {

std::unique_ptr<QIODevice> SerialChannel::Open(const QDeadlineTimer&, ConnectionState&) {
  const QEventLoop needed;  // creates the thread's event dispatcher, which the port needs
  auto port = std::make_unique<QSerialPort>(QString::fromStdString(device_));
  port->setBaudRate(baud_);
  if (!port->open(QIODevice::ReadWrite)) return nullptr;
  port->clear();
  return port;
}

bool SerialChannel::IsAlive(QIODevice& line) const {
  const auto error = static_cast<QSerialPort&>(line).error();
  return error == QSerialPort::NoError || error == QSerialPort::TimeoutError;
}

}  // namespace AdvancedControl
