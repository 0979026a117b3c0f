#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>

#include "fleet/ProfileValues.h"

namespace AdvancedControl {

namespace {

constexpr int kMaximumDeviceValue = std::numeric_limits<std::uint16_t>::max();

struct NamedRange {
  std::string_view name;
  std::size_t index;
};

constexpr NamedRange kNamedRanges[] = {
    {"autoOff", RangeIndex::AutoOff},
    {"colorTempGainR", RangeIndex::ColorTempAdjust},
    {"colorTempGainG", RangeIndex::ColorTempAdjust + 1},
    {"colorTempGainB", RangeIndex::ColorTempAdjust + 2},
    {"colorTempOffsetR", RangeIndex::ColorTempAdjust + 3},
    {"colorTempOffsetG", RangeIndex::ColorTempAdjust + 4},
    {"colorTempOffsetB", RangeIndex::ColorTempAdjust + 5},
    {"gammaPoint1", RangeIndex::GammaPoint},
    {"gammaPoint2", RangeIndex::GammaPoint + 1},
    {"gammaPoint3", RangeIndex::GammaPoint + 2},
    {"gammaPoint4", RangeIndex::GammaPoint + 3},
    {"gammaPoint5", RangeIndex::GammaPoint + 4},
    {"gammaPoint6", RangeIndex::GammaPoint + 5},
    {"gammaPoint7", RangeIndex::GammaPoint + 6},
    {"gammaPoint8", RangeIndex::GammaPoint + 7},
    {"overScan", RangeIndex::OverScan},
    {"hPhase", RangeIndex::HPhase},
    {"brightness", RangeIndex::Brightness},
    {"contrast", RangeIndex::Contrast},
    {"keystoneV", RangeIndex::KeystoneV},
    {"keystoneH", RangeIndex::KeystoneH},
    {"volume", RangeIndex::Volume},
    {"colorBalR", RangeIndex::ColorBalR},
    {"colorBalG", RangeIndex::ColorBalG},
    {"colorBalB", RangeIndex::ColorBalB},
    {"sharpness", RangeIndex::Sharpness},
    {"color", RangeIndex::Color},
    {"tint", RangeIndex::Tint},
    {"customGamma", RangeIndex::CustomGamma},
    {"osdBrightness", RangeIndex::OsdBrightness},
    {"electricZoom", RangeIndex::ElectricZoom},
    {"treble", RangeIndex::Treble},
    {"bass", RangeIndex::Bass},
};

std::size_t RangeNumber(const QString& key, const QString& path) {
  const auto* named = std::ranges::find_if(
      kNamedRanges, [&key](const NamedRange& range) { return Text(range.name) == key; });
  if (named != std::end(kNamedRanges)) return named->index;
  bool isNumber = false;
  const std::size_t index = key.toULongLong(&isNumber);
  if (!isNumber || index >= RangeIndex::Count || key != QString::number(index)) {
    throw WrongValue{path, ProfileFile::tr("is neither the name of a range nor a number 0 to %1")
                               .arg(RangeIndex::Count - 1)};
  }
  named = std::ranges::find(kNamedRanges, index, &NamedRange::index);
  if (named != std::end(kNamedRanges)) {
    throw WrongValue{path,
                     ProfileFile::tr("must be given by its name \"%1\"").arg(Text(named->name))};
  }
  return index;
}

}  // namespace

void ApplyRanges(const QJsonObject& ranges, const QString& path, CModelInfo2& model) {
  for (auto member = ranges.begin(); member != ranges.end(); ++member) {
    const QString rangePath = At(path, member.key());
    std::string& text = model.RangeText(RangeNumber(member.key(), rangePath));
    if (member.value().isNull()) {
      text.clear();
      continue;
    }
    const QJsonArray ends = member.value().toArray();
    if (ends.size() != 2) {
      throw WrongValue{rangePath, ProfileFile::tr("must be [minimum, maximum] or null")};
    }
    // Ends below zero are for settings whose device values are signed.
    constexpr int kLowest = std::numeric_limits<std::int16_t>::min();
    const auto minimum = Integer(ends[0], At(rangePath, 0), kLowest, kMaximumDeviceValue);
    const auto maximum = Integer(ends[1], At(rangePath, 1), kLowest, kMaximumDeviceValue);
    if (minimum > maximum) {
      throw WrongValue{rangePath, ProfileFile::tr("has a minimum above its maximum")};
    }
    text = std::to_string(minimum) + ',' + std::to_string(maximum);
  }
}

}  // namespace AdvancedControl
