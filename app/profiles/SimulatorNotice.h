#pragma once

#include <map>
#include <string>

#include <QString>

/// Where the projectors of a profile file are served, by their names: "tcp://127.0.0.1:4400".
using ServedAddresses = std::map<std::string, std::string>;

/// Tells the other programs of the user where a simulator serves the projectors of a profile file,
/// while it exists. They are told in a file below XDG_RUNTIME_DIR that is locked meanwhile; without
/// that variable nobody is told. Of several simulators for one profile file the first one tells.
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

/// What a running simulator tells about a profile file; empty if none does.
ServedAddresses FindServed(const QString& profiles);
