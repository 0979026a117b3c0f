#pragma once

#include <memory>
#include <string>

#include <QIODevice>

class QSocketNotifier;

/// The projector's end of a serial line, simulated by a pseudo terminal. A program that opens the
/// path is at the other end.
class PseudoTerminal final : public QIODevice {
 public:
  PseudoTerminal();
  ~PseudoTerminal() override;

  /// Whether the pseudo terminal was created; if not, `errorString` says why.
  bool IsOpen() const { return master_ >= 0; }
  const std::string& Path() const { return path_; }

  bool isSequential() const override { return true; }
  qint64 bytesAvailable() const override;

 protected:
  qint64 readData(char* data, qint64 size) override;
  qint64 writeData(const char* data, qint64 size) override;

 private:
  int master_ = -1;
  int slave_ = -1;  // kept open so that the line survives the closing of the other end
  std::string path_;
  std::unique_ptr<QSocketNotifier> notifier_;
};
