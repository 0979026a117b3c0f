#include <QApplication>
#include <QStyleFactory>
#include <QTemporaryFile>
#include <gtest/gtest.h>

#include "i18n/Catalog.h"

namespace {

// The screen given by TEST_SCREEN, such as "1024x768", or one large enough for every dialog.
QByteArray TestDisplay(QTemporaryFile& file) {
  QList<QByteArray> size = qgetenv("TEST_SCREEN").split('x');
  if (size.size() != 2) size = {"1920", "1200"};
  file.open();
  file.write(
      R"({"screens": [{"name": "test", "x": 0, "y": 0, "logicalDpi": 96, "dpr": 1, "width": )" +
      size[0] + R"(, "height": )" + size[1] + "}]}");
  file.close();
  return "offscreen:configfile=" + file.fileName().toLocal8Bit();
}

}  // namespace

int main(int argc, char** argv) {
  // The tests set their own display and language, independent of the caller's.
  QTemporaryFile screen;
  qputenv("QT_QPA_PLATFORM", TestDisplay(screen));
  qputenv("LC_ALL", "en_US.UTF-8");
#ifndef WITHOUT_CATALOG
  LoadCatalog();
#endif
  QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
