#pragma once

#include <optional>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What the program was asked to do.
struct CommandLine {
  Q_DECLARE_TR_FUNCTIONS(CommandLine)

 public:
  enum class Action { Window, List, Screenshot, Tour, Help, Version };

  Action action = Action::Window;
  QString profiles;             ///< Empty for the file that comes with the program.
  QString open;                 ///< Name of the projector to open; empty for none.
  std::optional<int> tab;       ///< Tab to select, from 0.
  QString target;               ///< File of `Screenshot`, folder of `Tour`.
  std::optional<int> language;  ///< 1033 or 2052.
  QString help;                 ///< The text for `Help`.
  bool platform = false;        ///< Qt is told its platform,
  bool style = false;           ///< or its style.

  /// One line; empty when the arguments can be followed. After an error only `language` counts.
  QString error;
};

/// Reads the arguments, the first of which is the program's name; those that Qt takes for itself
/// (`-style`, `-platform` ...) are left to it. Needs an application object.
CommandLine ParseCommandLine(const QStringList& arguments);
