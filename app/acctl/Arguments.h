#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/acctl/CommandTable.h"

enum class Format { Text, Json, JsonLines, Tsv, Value };

/// How projectors are reached.
struct ConnectingOptions {
  std::string address{};       ///< Where the projector is, instead of its profile's address.
  std::uint16_t port = 0;      ///< Of `Find`; 0 for that of PJLink.
  std::string password{};      ///< Of PJLink projectors whose profile has none.
  std::string passwordFile{};  ///< The file that has the password; empty for none.
  std::chrono::milliseconds timeOut{2000};  ///< For one answer.
  int retries = 0;                          ///< Further attempts to reach a silent projector.
  int jobs = 0;                             ///< Projectors at once; 0 for the command's default.
};

/// What the program was asked to do.
struct Arguments {
  Command command = Command::Help;
  std::optional<Command> topic;         ///< The command of which `Help` or `Man` shows the page.
  std::vector<std::string> projectors;  ///< Selections, as they were typed.
  std::string where;                    ///< Conditions; empty for none.
  std::string file;                     ///< A file or folder; "-" is a standard stream.
  /// What follows: keys, for `Set` each followed by its value; otherwise what the command takes.
  std::vector<std::string> words;

  std::string profiles;  ///< Empty for the file that comes with the program.
  ConnectingOptions connecting;
  std::vector<std::string> only;             ///< Patterns of keys; empty for all.
  std::string folder;                        ///< Of `Save`: a file for each projector goes there.
  std::string undoFolder;                    ///< Empty for the user's own.
  int undoDays = 30;                         ///< Older undo files are removed.
  std::optional<std::uint32_t> language;     ///< Of texts; without one, the system's.
  std::chrono::milliseconds interval{1000};  ///< Of `Watch`.
  std::optional<std::chrono::milliseconds> wait;  ///< How long to wait for a state.
  std::string until;                              ///< Of `Watch`: "KEY=VALUE"; empty for none.
  std::string from;                               ///< Of `Set`: a file with the words.
  Command usedBy = Command::Settings;  ///< Of `Settings`: only those that this command can use.
  Format format = Format::Text;
  bool brief = false;
  bool dryRun = false;
  bool lenient = false;   ///< Skips what is wrong in `file`.
  bool force = false;     ///< Does what is refused otherwise for safety.
  bool failFast = false;  ///< Begins no other projector after the first error.
  bool exitCode = false;  ///< Of `Diff`: differences end it with 1.
  bool list = false;      ///< Of `Undo`: lists the runs.

  std::string error;  ///< One line; empty if the arguments are correct.
};
