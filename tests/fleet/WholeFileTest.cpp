// Files that are written whole or not at all.

#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>

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

// The group 0 is one of the writer's own.
TEST(WholeFile, KeepsItsOwnerAndGroupOrLetsNobodyElseReadIt) {
  using enum FileAccess;
  using Owned = std::tuple<uid_t, gid_t, mode_t>;
  const QTemporaryDir folder;
  const std::string file = folder.filePath("file").toStdString();
  Write(file.c_str(), "old");
  if (chown(file.c_str(), 7, 7) != 0) GTEST_SKIP() << "only root can give files away";
  ASSERT_EQ(chmod(qPrintable(folder.path()), 0777), 0);
  for (const auto& [writer, group, mode, access, after] :
       {std::tuple(0U, 8U, 04640U, Kept, Owned(7, 8, 04640)),
        {0U, 8U, 0644U, OwnerOnly, Owned(7, 8, 0600)},
        {9U, 0U, 06664U, Kept, Owned(9, 0, 0664)},
        {9U, 8U, 06664U, Kept, Owned(9, 0, 0644)},
        {9U, 8U, 0640U, Kept, Owned(9, 0, 0600)},
        {9U, 8U, 0604U, Kept, Owned(9, 0, 0600)}}) {
    ASSERT_EQ(chown(file.c_str(), 7, group) + chmod(file.c_str(), mode) + seteuid(writer), 0);
    EXPECT_EQ(WriteWholeFile(file.c_str(), "new", access), "");
    struct stat status {};
    ASSERT_EQ(seteuid(0) + stat(file.c_str(), &status), 0);
    EXPECT_EQ(Owned(status.st_uid, status.st_gid, status.st_mode & 07777), after) << mode;
  }
}

}  // namespace
