#include "toolkit/FocusPen.h"

#include <QWidget>

#include "toolkit/Contrast.h"

namespace AdvancedControl {

namespace {

constexpr double kVisible = 3;  // contrast

}  // namespace

QPen FocusPen(const QWidget& control) {
  const QPalette& palette = control.palette();
  return {ReadableOn(palette.color(QPalette::Window), palette.color(QPalette::Highlight), kVisible),
          kFocusWidth};
}

bool ShowsFocus(const QWidget& control) {
  return control.hasFocus() && control.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

}  // namespace AdvancedControl
