#pragma once

#include <string>

#include <QJsonArray>
#include <QJsonObject>

#include "app/acctl/Arguments.h"
#include "app/acctl/Report.h"

/// An error that is not about a projector, as standard output has it in JSON; nothing in any other
/// format.
std::string ErrorOutput(const Arguments& arguments, const Problem& problem);

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

  /// `name` as it is shown, for instance with "(simulated)".
  void Add(const std::string& name, bool isSimulated, const Report& report);
  /// Prints what is left. False if something could not be printed.
  bool Finish();

 private:
  void AddText(const std::string& name, bool isSimulated, const std::string& text);
  void AddLines(const QJsonObject& entry);
  void AddValues(const QJsonObject& entry);
  void Write(std::string_view text);

  const Arguments& arguments_;
  const int nameWidth_;
  QJsonArray projectors_;
  bool isBegun_ = false;
  bool isPrinted_ = true;
};

/// The name with a mark for projectors that are only simulated.
std::string ShownName(const std::string& name, bool isSimulated);
