#include <algorithm>
#include <gmock/gmock.h>
#include <utility>

#include <QImage>
#include <QTemporaryDir>

#include "tests/support/Programs.h"
#include "tests/support/Record.h"

namespace {

using testing::HasSubstr;

/// Runs the program without a display.
Outcome RunProgram(QStringList arguments) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    environment.remove(QLatin1String(name));
  const bool simulates = arguments.removeOne("simulator");
  return Run(simulates ? SIMULATOR_PROGRAM : ADVANCED_CONTROL_PROGRAM, arguments, {}, environment);
}

TEST(Program, AnswersWrongUseAsRecorded) {
  ExpectAnswers(TEST_SOURCE_DIR "/app/WrongUses.txt", [](const std::string& words) {
    const Outcome run = RunProgram(QProcess::splitCommand(QString::fromStdString(words)));
    EXPECT_EQ(run.output, "") << words;
    EXPECT_EQ(run.errors.find('\n') + 1, run.errors.size()) << words;
    return std::to_string(run.exitCode) + ' ' + run.errors.substr(0, run.errors.find('\n'));
  });
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
