#include "toolkit/Contrast.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace AdvancedControl {

namespace {

// More than 3, because styles draw pages and buttons lighter than the palette says.
constexpr double kOnLight = 3.5;
constexpr double kOnDark = 4.5;

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

bool IsDark(const QColor& background) {
  return ContrastOf(background, Qt::white) > ContrastOf(background, Qt::black);
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
  const QColor end = IsDark(background) ? Qt::white : Qt::black;
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
    const QColor behind = palette.color(QPalette::Disabled, background);
    const QColor readable = ReadableOn(behind, color, IsDark(behind) ? kOnDark : kOnLight);
    if (readable != color) palette.setColor(QPalette::Disabled, text, readable);
  }
  return palette;
}

}  // namespace AdvancedControl
