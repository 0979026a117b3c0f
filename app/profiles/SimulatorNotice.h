#pragma once

#include <map>
#include <string>

#include <QString>

/// Where the projectors of a profile file are served, by their names: "tcp://127.0.0.1:4400".
using ServedAddresses = std::map<std::string, std::string>;

/// Publishes, while it exists, where a simulator serves the projectors of a profile file, for the
/// other programs of the same user. Uses a locked file below XDG_RUNTIME_DIR; without that variable
/// nothing is published. If several simulators serve the same profile file, only the first one
/// publishes.
class SimulatorNotice {
 public:
  /// `profiles` is the path of the profile file.
  SimulatorNotice(const QString& profiles, const ServedAddresses& served);
  ~SimulatorNotice();
  SimulatorNotice(const SimulatorNotice&) = delete;
  SimulatorNotice& operator=(const SimulatorNotice&) = delete;

 private:
  const QString path_;
  int file_ = -1;
};

/// The addresses that a running simulator has published for a profile file; empty without one.
ServedAddresses FindServed(const QString& profiles);
