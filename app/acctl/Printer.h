#pragma once

#include <set>
#include <span>
#include <string>
#include <string_view>

#include <QJsonArray>
#include <QJsonObject>

#include "app/acctl/Arguments.h"
#include "app/acctl/Report.h"

/// Reports errors that end a command before it has begun. Returns the highest of their exit codes.
int ReportErrors(const Arguments& arguments, std::span<const Problem> problems);
inline int ReportError(const Arguments& arguments, const Problem& problem) {
  return ReportErrors(arguments, {&problem, 1});
}

/// The outermost object of all output in JSON.
QJsonObject Envelope(Command command);
QJsonObject Describe(const Problem& problem);

/// Prints reports on standard output in the format of the command, and their problems as lines on
/// standard error.
class Printer {
 public:
  /// `nameWidth` is the number of columns of the longest name.
  Printer(const Arguments& arguments, int nameWidth)
      : arguments_(arguments), nameWidth_(nameWidth) {}

  void Add(const std::string& name, bool isSimulated, const Report& report);
  /// Adds the text of all projectors together; other formats have an entry for each.
  void AddTable(std::string_view text);
  /// Adds an error that is not about a projector.
  void Add(const Problem& problem);
  /// Prints what is left. False if something could not be printed.
  bool Finish();

 private:
  void AddText(const std::string& name, bool isSimulated, const std::string& text);
  /// Prints the lines that were not printed yet.
  void AddNewLines(std::string_view text);
  void AddLines(const QJsonObject& entry);
  void AddValues(const QJsonObject& entry);
  void Write(std::string_view text);

  const Arguments& arguments_;
  const int nameWidth_;
  QJsonArray projectors_;
  QJsonArray errors_;
  std::set<std::string> lines_;
  bool isBegun_ = false;
  bool isPrinted_ = true;
};

/// The name with a mark for projectors that are only simulated.
std::string ShownName(const std::string& name, bool isSimulated);
