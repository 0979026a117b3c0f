#pragma once

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include "Namespace.h"
#include "toolkit/Contrast.h"

namespace AdvancedControl {

/// An icon that is painted anew in every size, in the colours of the application's palette.
/// User-interface thread only.
class PaintedIcon : public QIconEngine {
 public:
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
  }

 protected:
  /// The colour of a button's text.
  static QColor TextColor(QIcon::Mode mode) {
    const QPalette palette = WithReadableDisabledTexts(QGuiApplication::palette());
    return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                         QPalette::ButtonText);
  }
};

}  // namespace AdvancedControl
