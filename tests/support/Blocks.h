#pragma once

#include <QFont>
#include <QFontDatabase>

/// A font in which each sign is a block, so that texts have the same sizes on all machines.
inline QFont Blocks(int size) {
  static const int blocks =
      QFontDatabase::addApplicationFont(TEST_SOURCE_DIR "/toolkit/Blocks.ttf");
  QFont font(QFontDatabase::applicationFontFamilies(blocks));
  font.setPixelSize(size);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(QFont::NoSubpixelAntialias);
  return font;
}
