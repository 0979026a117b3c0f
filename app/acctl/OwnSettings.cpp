#include "app/acctl/OwnSettings.h"

#include <algorithm>
#include <cstdlib>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "app/acctl/Message.h"
#include "app/acctl/OptionTable.h"
#include "app/acctl/Report.h"
#include "fleet/WholeFile.h"

namespace {

std::string VariableOf(const OptionForm& option) {
  std::string name = "ACCTL_";
  for (const char letter : option.name) {
    name += letter == '-' ? '_' : static_cast<char>(letter >= 'a' ? letter - 'a' + 'A' : letter);
  }
  return name;
}

/// `origin` is where the value comes from.
std::string Take(Arguments& arguments, const OptionForm& option, const std::string& value,
                 const std::string& origin) {
  if (option.take(arguments, value)) return {};
  return origin + ": " + Message(Acctl::tr("'%1' is not possible"), value);
}

/// Lines like "jobs = 32"; '#' begins a comment.
std::string TakeFile(Arguments& arguments, const QString& path, const QByteArray& text) {
  int number = 0;
  for (const QByteArray& whole : text.split('\n')) {
    ++number;
    const QByteArray line = whole.trimmed();
    if (line.isEmpty() || line.startsWith('#')) continue;
    const std::string place = path.toStdString() + ':' + std::to_string(number) + ": ";
    const auto equals = line.indexOf('=');
    if (equals < 0) return place + Message(Acctl::tr("'=' is missing"));
    const std::string name = line.left(equals).trimmed().toStdString();
    const OptionForm* const option = FindOption(name);
    if (option == nullptr || !option->isDefault) {
      return place + Message(Acctl::tr("there is no setting %1"), name);
    }
    std::string value = line.mid(equals + 1).trimmed().toStdString();
    const bool isFolder = option->value == "DIR";
    const bool isPath = isFolder || option->value == "FILE";
    if (isPath && value.starts_with("~/")) value.replace(0, 1, QDir::homePath().toStdString());
    if (isFolder && !value.starts_with('/')) {  // else it would be another one in each folder
      return place + name + ": " + Message(Acctl::tr("'%1' must begin with / or ~/"), value);
    }
    std::string error = Take(arguments, *option, value, place + name);
    if (!error.empty()) return error;
  }
  return {};
}

}  // namespace

void TakeOwnSettings(Arguments& arguments) {
  constexpr qsizetype kMost = 65'536;
  const char* const named = std::getenv("ACCTL_CONFIG");
  const QString path =
      named != nullptr ? QString::fromLocal8Bit(named)
                       : QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                             QStringLiteral("/advanced-control/acctl.conf");
  if (const FileBytes file = ReadToEnd(path, kMost); file.error.isEmpty()) {
    arguments.error = TakeFile(arguments, path, file.bytes);
  } else if (named != nullptr ? *named != '\0' : QFileInfo::exists(path)) {
    arguments.error = Message(Acctl::tr("cannot read %1: %2"), path, file.error);
  }
  for (const OptionForm& option : OptionForms()) {
    if (!option.isDefault || !arguments.error.empty()) continue;
    const std::string variable = VariableOf(option);
    const char* const value = std::getenv(variable.c_str());
    if (value == nullptr || *value == '\0') continue;
    arguments.error = Take(arguments, option, value, variable);
  }
}
