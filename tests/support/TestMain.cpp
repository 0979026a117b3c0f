#include <QApplication>
#include <QStyleFactory>
#include <gtest/gtest.h>

#include "i18n/Catalog.h"

int main(int argc, char** argv) {
  // The tests bring their own display and language, whatever the caller has.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "en_US.UTF-8");
#ifndef WITHOUT_CATALOG
  LoadCatalog();
#endif
  QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
