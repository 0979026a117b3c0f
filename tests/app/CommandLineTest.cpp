#include <algorithm>
#include <gmock/gmock.h>
#include <utility>

#include <QImage>
#include <QTemporaryDir>

#include "tests/support/Programs.h"

namespace {

using testing::HasSubstr;

/// Runs the program without a display.
Outcome RunProgram(const QStringList& arguments) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    environment.remove(QLatin1String(name));
  }
  return Run(ADVANCED_CONTROL_PROGRAM, arguments, {}, environment);
}

const std::pair<QStringList, const char*> kWrongArguments[] = {
    {{"--colour"}, "Unknown option 'colour'"},
    {{"hall"}, "Unexpected argument 'hall'"},
    {{"--open"}, "open"},
    {{"--open="}, "--open needs a value"},
    {{"--open", "Nobody"}, "there is no projector 'Nobody'"},
    {{"--tab", "1"}, "--tab needs --open"},
    {{"--open", "Projector 5-30", "--tab", "x"}, "'x' is not a number"},
    {{"--open", "Projector 5-30", "--tab=-1"}, "tabs 0 to 8"},
    {{"--open", "Projector 5-32", "--tab", "8"}, "tabs 0 to 7"},
    {{"--screenshot", "a.png"}, "--screenshot needs --open"},
    {{"--open", "Projector 5-30", "--screenshot", "/nowhere/a.png"}, "/nowhere/a.png: "},
    {{"--tour", "/dev/null/tour"}, "/dev/null/tour"},
    {{"--list", "--tour", "x"}, "Only one of"},
    {{"-platform=offscreen", "--list"}, "'=' in '-platform=offscreen'"},
    {{"--list", "-style"}, "--style needs a value"},
    {{"--list", "--language", "1066"}, "no texts in '1066'"},
    {{"--profiles", "/nowhere.json"}, "cannot read profiles /nowhere.json: "},
    {{"--profiles", "/dev/zero"}, "cannot read profiles /dev/zero: not a regular"},
    {{}, "no display"},
    {{"--colour", "--language", "2052"}, "未知选项“colour”"},
    {{"--profiles", "/dev/zero", "--language", "2052"}, "无法读取配置文件 /dev/zero：不是普通文件"},
};

TEST(Program, ReportsAWrongCommandLineInOneLineWithAnExitCode) {
  for (const auto& [arguments, error] : kWrongArguments) {
    const Outcome run = RunProgram(arguments);
    EXPECT_EQ(run.exitCode, arguments.isEmpty() ? 1 : 2) << error;
    EXPECT_THAT(run.errors, HasSubstr(error));
    EXPECT_EQ(std::ranges::count(run.errors, '\n'), 1) << run.errors;
    EXPECT_EQ(run.output, "") << error;
  }
}

TEST(Program, SavesPicturesOfTheRequestedTabAndLanguage) {
  const QTemporaryDir folder;
  const auto picture = [&folder](const QStringList& arguments) {
    const QString file = folder.filePath("picture.png");
    const Outcome run =
        RunProgram(QStringList{"--open", "Projector 5-30", "--screenshot", file} + arguments);
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    return QImage(file);
  };
  const QImage status = picture({"--language", "1033"});
  EXPECT_GT(status.width(), 400);
  EXPECT_NE(status, picture({"--language", "1033", "--tab", "1"}));
  EXPECT_NE(status, picture({"--language", "2052"}));
}

TEST(Program, ListsItsProjectorsAndPassesQtOptionsToQt) {
  for (const QStringList& arguments : {QStringList{"-style", "windows", "--list"},
                                       {"-reverse", "-platform", "offscreen", "--list"},
                                       {"--list", "--style=Fusion", "-qwindowtitle", "--tour"}}) {
    const Outcome run = RunProgram(arguments);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.output,
                testing::ContainsRegex("Projector 4-11 +QD-M7450 +4 +11 +192\\.0\\.2\\."));
    EXPECT_EQ(run.errors, "");
  }
}

}  // namespace
