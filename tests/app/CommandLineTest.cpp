#include <csignal>
#include <gmock/gmock.h>
#include <tuple>
#include <utility>

#include <QImage>
#include <QTemporaryDir>

#include "tests/support/Programs.h"
#include "tests/support/Record.h"
#include "tests/support/Soon.h"

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

// One that was started with nohup is not ended by a hang-up, as the set of what it takes shows.
TEST(Program, EndsAtASignalAsIfItsWindowWereClosed) {
  const QTemporaryDir folder;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("XDG_CONFIG_HOME", folder.path());
  const QString settings = folder.filePath("advanced-control/advanced-control.conf");
  const std::tuple<int, void (*)(int), const char*> cases[] = {
      {SIGTERM, SIG_IGN, "4002"}, {SIGINT, SIG_DFL, "4003"}, {SIGHUP, SIG_DFL, "4003"}};
  for (const auto& [signal, hangUp, taken] : cases) {
    for (const int inherited : {SIGINT, SIGHUP}) std::signal(inherited, SIG_DFL);
    std::signal(SIGHUP, hangUp);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(ADVANCED_CONTROL_PROGRAM, {});
    const QString status = "/proc/" + QString::number(program.processId()) + "/status";
    const QByteArray mask = QByteArray("SigBlk:\t000000000000") + taken;
    EXPECT_TRUE(Soon([&] { return Contents(status).contains(mask); }));
    ::kill(static_cast<pid_t>(program.processId()), signal);
    EXPECT_EQ(Finish(program).exitCode, 0);
    EXPECT_TRUE(Contents(settings).contains("geometry"));
    QFile::remove(settings);
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
