// Files that are written whole or not at all.

#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "fleet/ProfileFile.h"
#include "fleet/WholeFile.h"
#include "tests/support/Limited.h"
#include "tests/support/Programs.h"

namespace {

mode_t ModeOf(const QString& path) {
  struct stat status {};
  EXPECT_EQ(stat(qPrintable(path), &status), 0);
  return status.st_mode & 07777;
}

TEST(WholeFile, IsWrittenWholeOrNotAtAll) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("file"),
                longest = folder.filePath(QString(250, 'x') + ".txt");
  const auto fault = [](const QString& error) { return error.section(": ", -1).toStdString(); };
  const auto open = [] { return QDir("/proc/self/fd").count(); };
  const auto before = open();
  const mode_t mask = umask(0022);
  EXPECT_EQ(WriteWholeFile(file, "new") + CheckWholeFile(file), "");
  umask(mask);
  EXPECT_EQ(ModeOf(file), 0644U);
  ASSERT_EQ(chmod(qPrintable(file), 0751), 0);
  EXPECT_EQ(WriteWholeFile(file, "old"), "");
  EXPECT_EQ(ModeOf(file), 0751U) << "kept";
  EXPECT_EQ(WriteNewFile(longest, "1").error, "");
  EXPECT_EQ(fault(WriteNewFile(longest, "2").error), "File name too long");
  EXPECT_EQ(Contents(longest), "1");
  for (const char* const number : {"-2.", "-3."}) {
    EXPECT_EQ(WriteNewFile(file, QByteArray(70'000, 'x')).path, file + number);
  }
  const QString circle = folder.filePath("circle");
  ASSERT_TRUE(QFile::link(folder.filePath("none/../circle"), circle));
  const std::pair<QString, const char*> wrong[] = {
      {folder.path(), "Is a directory"},
      {file + "/in", "Not a directory"},
      {folder.filePath(QString(256, 'x')), "File name too long"},
      {folder.filePath("none/in"), "No such file or directory"},
      {circle, "Too many levels of symbolic links"}};
  for (const auto& [path, error] : wrong) {
    EXPECT_EQ(fault(WriteWholeFile(path, "new")), error);
    EXPECT_EQ(fault(CheckWholeFile(path)), error);
  }
  for (const QString& path : {folder.filePath("none/in"), QString()}) {
    EXPECT_EQ(fault(WriteNewFile(path, "new").error), "No such file or directory");
    EXPECT_EQ(fault(WriteWholeFile(path, "new")), "No such file or directory");
  }
  EXPECT_EQ(fault(WriteWholeFile("/dev/full", "new")), "No space left on device");
  EXPECT_EQ(WriteWholeFile("/dev/null", "new") + CheckWholeFile("/dev/full"), "");
  {
    const Limited size(RLIMIT_FSIZE, 2);
    EXPECT_EQ(fault(WriteWholeFile(file, "new")), "File too large");
    EXPECT_EQ(fault(WriteNewFile(file, "new").error), "File too large");
  }
  EXPECT_EQ(Contents(file), "old");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 4) << "none is left";
  EXPECT_EQ(ReadToEnd(file, 2).bytes + ReadToEnd(file, 9).bytes, "olold");
  EXPECT_EQ(ReadToEnd(file + "-2.", 65'537).bytes.size(), 65'537);
  EXPECT_EQ(ReadToEnd(folder.filePath("none"), 9).error, "No such file or directory");
  EXPECT_EQ(ReadToEnd(folder.path(), 9).error, "Is a directory");
  EXPECT_EQ(fault(ReadProfileText(folder.filePath("none")).error), "No such file or directory");
  EXPECT_EQ(fault(ReadProfileText(folder.path()).error), "not a regular file");
  EXPECT_EQ(ReadProfileText(file + "-2.").text.size(), 70'000);
  EXPECT_EQ(open(), before) << "all are closed";
}

}  // namespace
