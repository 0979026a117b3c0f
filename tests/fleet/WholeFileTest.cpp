// Files that are written whole or not at all.

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "fleet/WholeFile.h"
#include "tests/support/Limited.h"
#include "tests/support/Programs.h"

namespace {

TEST(WholeFile, IsWrittenWholeOrNotAtAll) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("file"),
                longest = folder.filePath(QString(250, 'x') + ".txt");
  const auto fault = [](const QString& error) { return error.section(": ", -1).toStdString(); };
  EXPECT_EQ(WriteWholeFile(file, "old"), "");
  EXPECT_EQ(WriteNewFile(longest, "1").error, "");
  EXPECT_EQ(fault(WriteNewFile(longest, "2").error), "File name too long");
  EXPECT_EQ(Contents(longest), "1");
  EXPECT_EQ(WriteNewFile(file, "new").path, file + "-2.");
  const std::pair<QString, const char*> wrong[] = {
      {folder.path(), "Is a directory"},
      {file + "/in", "Not a directory"},
      {folder.filePath("none/in"), "No such file or directory"}};
  for (const auto& [path, error] : wrong) {
    EXPECT_EQ(fault(WriteWholeFile(path, "new")), error);
    EXPECT_EQ(fault(CheckWholeFile(path)), error);
  }
  EXPECT_EQ(fault(WriteNewFile(folder.filePath("none/in"), "new").error),
            "No such file or directory");
  EXPECT_EQ(fault(WriteWholeFile("/dev/full", "new")), "No space left on device");
  EXPECT_EQ(WriteWholeFile("/dev/null", "new") + CheckWholeFile("/dev/full"), "");
  {
    const Limited size(RLIMIT_FSIZE, 2);
    EXPECT_EQ(fault(WriteWholeFile(file, "new")), "File too large");
    EXPECT_EQ(fault(WriteNewFile(file, "new").error), "File too large");
  }
  EXPECT_EQ(Contents(file), "old");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 3) << "none is left";
  EXPECT_EQ(ReadToEnd(file, 2).bytes + ReadToEnd(file, 9).bytes, "olold");
  EXPECT_EQ(ReadToEnd(folder.filePath("none"), 9).error, "No such file or directory");
  EXPECT_EQ(ReadToEnd(folder.path(), 9).error, "Is a directory");
}

}  // namespace
