#include "app/desktop/Theme.h"

#include <QApplication>
#include <QPalette>

namespace {

// The other colors follow from that of a window.
QPalette LightPalette() {
  QPalette palette(QColor(0xEF, 0xEF, 0xF0));
  palette.setColor(QPalette::Highlight, QColor(0x1F, 0x6F, 0xC4));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xF6, 0xF6, 0xF8));
  palette.setColor(QPalette::PlaceholderText, QColor(0x6A, 0x6A, 0x6E));
  return palette;
}

QPalette DarkPalette() {
  QPalette palette(QColor(0x32, 0x34, 0x38));
  palette.setColor(QPalette::Base, QColor(0x22, 0x24, 0x27));
  palette.setColor(QPalette::AlternateBase, QColor(0x2A, 0x2C, 0x30));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(role, QColor(0xEA, 0xEB, 0xED));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x96, 0x99, 0x9E));
  palette.setColor(QPalette::PlaceholderText, QColor(0xA0, 0xA3, 0xA8));
  palette.setColor(QPalette::Highlight, QColor(0x3A, 0x7B, 0xC8));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(0x7A, 0xB4, 0xF5));
  palette.setColor(QPalette::LinkVisited, QColor(0xC0, 0xA0, 0xF0));
  palette.setColor(QPalette::ToolTipBase, QColor(0x44, 0x47, 0x4C));
  palette.setColor(QPalette::ToolTipText, QColor(0xEA, 0xEB, 0xED));
  return palette;
}

}  // namespace

void Apply(Theme theme) {
  switch (theme) {
    case Theme::Desktop:
      return QApplication::setPalette(QPalette());
    case Theme::Light:
      return QApplication::setPalette(LightPalette());
    case Theme::Dark:
      return QApplication::setPalette(DarkPalette());
  }
}
