#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What the program was asked to do.
struct Arguments {
  enum class Command {
    Help,
    Version,
    List,
    Settings,
    Get,
    Set,
    Reset,
    Status,
    Save,
    Diff,
    Apply,
    Watch
  };

  Command command = Command::Help;
  std::vector<std::string> projectors;  ///< Names or patterns, as they were given.
  std::string file;                ///< Of `Save`, `Diff` and `Apply`; "-" is a standard stream.
  std::vector<std::string> words;  ///< Keys, of `Set` each followed by its value.

  std::string profiles;                      ///< Empty for the file that comes with the program.
  std::string address;                       ///< Where the projector is, instead of its profile's.
  std::string password;                      ///< Of PJLink projectors whose profile has none.
  std::string passwordFile;                  ///< Where it stands instead; empty for nowhere.
  std::vector<std::string> only;             ///< Patterns of keys; empty for all.
  std::string undoFolder;                    ///< Empty for the folder of `file`.
  std::optional<std::uint32_t> language;     ///< Of texts; the system's without.
  int jobs = 16;                             ///< Projectors at once.
  std::chrono::milliseconds timeOut{2000};   ///< For one answer.
  std::chrono::milliseconds interval{1000};  ///< Of `Watch`.
  Command usedBy = Command::Settings;        ///< Of `Settings`: only what this one can use.
  bool json = false;
  bool brief = false;
  bool dryRun = false;
  bool lenient = false;  ///< What is wrong in `file` is skipped.
  bool force = false;    ///< Of `Apply`: also the undo file of another projector.

  std::string error;  ///< One line; empty when the arguments can be followed.
};

/// Reads the arguments, without the program's name.
Arguments ParseArguments(const std::vector<std::string>& words);

/// The text of `--help`.
std::string HelpText();
