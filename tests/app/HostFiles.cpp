// Writes a file as the host application does, so that scripts/faults.py can make calls fail
// meanwhile:
//
//   host_files edit FILE   notes something about the first projector of a profile file, as the
//                          profile editor does
//   host_files log FILE    saves a command log
//
// An error is printed, and ends the program with 1.

#include <cstdio>
#include <dlfcn.h>

#include <QApplication>
#include <QEventLoop>

#include "app/desktop/log/CommandLog.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/profiles/OutOfMemory.h"

namespace {

/// Calls may fail as long as it lives. At the end, Qt loads the fonts only to forget them, and a
/// call that fails then is not ours.
class Failing {
 public:
  Failing() { Call("BeginFailing"); }
  ~Failing() { Call("EndFailing"); }
  Failing(const Failing&) = delete;
  Failing& operator=(const Failing&) = delete;

 private:
  static void Call(const char* name) {
    if (void* const function = dlsym(RTLD_DEFAULT, name)) {
      reinterpret_cast<void (*)()>(function)();
    }
  }
};

QString Edit(const QString& file) {
  const Failing failing;
  ProfileDocument document;
  const QString error = document.Load(file);
  return error.isEmpty() ? document.Change(0, {{"notes", "Changed"}}) : error;
}

QString SaveLog(const QString& file) {
  CommandLog log;
  QEventLoop untilShown;
  QObject::connect(&log, &CommandLog::Updated, &untilShown, &QEventLoop::quit);
  for (std::int16_t value = 0; value < 50; ++value) {
    log.Add({{}, "A", "Sharpness", {}, {PjtOperation::Set, 0x2201, value}, {.result = 1}, {}});
  }
  untilShown.exec();
  const Failing failing;
  return log.Save(file);
}

}  // namespace

int main(int argc, char* argv[]) {
  EndWhenOutOfMemory("host_files");
  const QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  const bool isLog = arguments.value(1) == "log";
  const QString error = isLog ? SaveLog(arguments.value(2)) : Edit(arguments.value(2));
  if (!error.isEmpty()) std::fprintf(stderr, "host_files: %s\n", qUtf8Printable(error));
  return error.isEmpty() ? 0 : 1;
}
