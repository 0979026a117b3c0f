#include "toolkit/Contrast.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace AdvancedControl {

namespace {

// A little more than 3, because styles draw pages somewhat lighter than `Window`.
constexpr double kDisabledContrast = 3.5;

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

QColor Mixed(const QColor& color, const QColor& other, double share) {
  const auto mix = [share](int a, int b) {
    return static_cast<int>(std::lround(a + (b - a) * share));
  };
  return {mix(color.red(), other.red()), mix(color.green(), other.green()),
          mix(color.blue(), other.blue())};
}

}  // namespace

double ContrastOf(const QColor& first, const QColor& second) {
  const double a = Luminance(first) + 0.05;
  const double b = Luminance(second) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

QColor ReadableOn(const QColor& background, const QColor& color, double contrast) {
  static constexpr int kSteps = 20;
  const QColor end = ContrastOf(background, Qt::black) > ContrastOf(background, Qt::white)
                         ? QColor(Qt::black)
                         : QColor(Qt::white);
  QColor readable = color;
  for (int i = 1; i <= kSteps && ContrastOf(background, readable) < contrast; ++i) {
    readable = Mixed(color, end, static_cast<double>(i) / kSteps);
  }
  return readable;
}

QPalette WithReadableDisabledTexts(QPalette palette) {
  static constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> kTexts[] = {
      {QPalette::WindowText, QPalette::Window},
      {QPalette::Text, QPalette::Base},
      {QPalette::ButtonText, QPalette::Button}};
  for (const auto& [text, background] : kTexts) {
    const QColor color = palette.color(QPalette::Disabled, text);
    const QColor readable =
        ReadableOn(palette.color(QPalette::Disabled, background), color, kDisabledContrast);
    if (readable != color) palette.setColor(QPalette::Disabled, text, readable);
  }
  return palette;
}

}  // namespace AdvancedControl
