#pragma once

#include <memory>
#include <string>

#include <QIODevice>

class QSocketNotifier;

/// The projector's end of a serial line that a pseudo terminal stands for. Whoever opens the path
/// is at the other end.
class PseudoTerminal final : public QIODevice {
 public:
  PseudoTerminal();
  ~PseudoTerminal() override;

  /// Whether there is one; `errorString` says why not.
  bool IsOpen() const { return master_ >= 0; }
  const std::string& Path() const { return path_; }

  bool isSequential() const override { return true; }
  qint64 bytesAvailable() const override;

 protected:
  qint64 readData(char* data, qint64 size) override;
  qint64 writeData(const char* data, qint64 size) override;

 private:
  int master_ = -1;
  int slave_ = -1;  // held open, so that the line lasts when the other end closes
  std::string path_;
  std::unique_ptr<QSocketNotifier> notifier_;
};
