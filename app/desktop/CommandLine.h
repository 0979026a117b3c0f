#pragma once

#include <cstdint>
#include <optional>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What the command line asks for.
struct CommandLine {
  Q_DECLARE_TR_FUNCTIONS(CommandLine)

 public:
  enum class Action { Window, List, Screenshot, Tour, Help, Version };

  Action action = Action::Window;
  QString profiles;        ///< Profile file; empty for the one that comes with the program.
  QString open;            ///< Name of the projector to open; empty for none.
  std::optional<int> tab;  ///< Tab to select, from 0.
  QString target;          ///< File of `Screenshot`, folder of `Tour`.
  std::optional<std::uint32_t> language;  ///< One that the catalog has texts in.
  QString help;                           ///< The text for `Help`.
  bool platform = false;                  ///< Whether `-platform` is given.
  bool style = false;                     ///< Whether `-style` is given.

  /// What is wrong with the arguments, in one line; empty if nothing is. After an error only
  /// `language` is valid.
  QString error;
};

/// Parses the arguments; the first one is the program's name. Arguments that Qt handles itself
/// (`-style`, `-platform` and so on) are ignored. Needs an application object.
CommandLine ParseCommandLine(const QStringList& arguments);
