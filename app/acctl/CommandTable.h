#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

enum class Command : std::uint8_t {
  Help,
  Version,
  List,
  Models,
  Settings,
  Explain,
  Get,
  Set,
  Reset,
  Status,
  Save,
  Diff,
  Apply,
  Undo,
  Watch,
  Find,
  Import,
  Export,
  Complete,  ///< Used by the shells.
  Man,       ///< Used by the build.
};

/// What the words behind a command are.
enum class Words : std::uint8_t {
  None,
  Projectors,      ///< Any number of selections.
  ProjectorWords,  ///< A selection, then words.
  ProjectorFile,   ///< A selection, then a file or folder.
  FileProjectors,  ///< A file or folder, then selections.
  File,
  Any,
};

struct CommandForm {
  Command command;
  std::string_view name;
  Words words;
  std::string_view usage;
  std::string_view summary;
  std::string_view description;  ///< Paragraphs.
  std::string_view examples;     ///< Command lines, one a line.
  int least;                     ///< Words behind the command.
  int most;
};

/// All commands in the order of the help; those without a summary are not shown there.
std::span<const CommandForm> CommandForms();
const CommandForm& FormOf(Command command);
/// The command of this name, or null.
const CommandForm* FindCommand(std::string_view name);
/// How it is called: "acctl get P KEY...".
std::string UsageOf(const CommandForm& form);
