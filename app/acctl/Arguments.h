#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/acctl/CommandTable.h"

enum class Format { Text, Json, JsonLines, Tsv, Value };

/// How to connect to projectors.
struct ConnectingOptions {
  std::string address{};                    ///< Replaces the address in the profile.
  std::uint16_t port = 0;                   ///< The port that `Find` asks; 0 for PJLink's.
  std::string password{};                   ///< For PJLink projectors whose profile has none.
  std::string passwordFile{};               ///< The file that has the password; empty for none.
  std::chrono::milliseconds timeOut{2000};  ///< Limit for one answer.
  int retries = 0;                          ///< Further attempts to reach a silent projector.
  int jobs = 0;                             ///< Projectors at once; 0 for the command's default.
};

/// What the program was asked to do.
struct Arguments {
  Command command = Command::Help;
  std::optional<Command> topic;         ///< The command of which `Help` or `Man` shows the page.
  std::vector<std::string> projectors;  ///< Which projectors to select, as typed.
  std::string where;                    ///< Conditions; empty for none.
  std::string file;                     ///< A file or folder; "-" is a standard stream.
  /// The remaining words: keys, for `Set` each followed by its value; otherwise the command's own
  /// arguments.
  std::vector<std::string> words;

  std::string profiles;  ///< Empty for the file that comes with the program.
  ConnectingOptions connecting;
  std::vector<std::string> only;                  ///< Patterns of keys; empty for all.
  std::string folder;                             ///< Where `Save` puts a file for each projector.
  std::string undoFolder;                         ///< Empty for the user's default folder.
  int undoDays = 30;                              ///< Older undo files are removed.
  std::optional<std::uint32_t> language;          ///< Language of texts; the system's if not given.
  std::chrono::milliseconds interval{1000};       ///< Between two readings of `Watch`.
  std::optional<std::chrono::milliseconds> wait;  ///< How long to wait for a state.
  std::string until;  ///< The condition that ends `Watch`, "KEY=VALUE"; empty for none.
  std::string from;   ///< File with further words for `Set`.
  Command usedBy = Command::Settings;  ///< `Settings` lists only what this command can use.
  Format format = Format::Text;
  bool brief = false;
  bool dryRun = false;
  bool lenient = false;   ///< Skips what is wrong in `file`.
  bool force = false;     ///< Does what would otherwise be refused for safety.
  bool failFast = false;  ///< Starts no further projector after the first error.
  bool exitCode = false;  ///< `Diff` returns 1 if there are differences.
  bool list = false;      ///< `Undo` lists the runs.

  std::string error;  ///< One line; empty if the arguments are correct.
};
