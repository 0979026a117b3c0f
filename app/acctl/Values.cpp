#include "app/acctl/Values.h"

#include "app/acctl/Aliases.h"

QJsonObject DescribeValue(const ValueTexts& texts, const ModelSetting& setting, int value,
                          std::optional<PowerState> power) {
  QJsonObject json{{"key", Wide(setting.key)},
                   {"caption", Wide(texts.Shown().Caption(setting))},
                   {"value", value},
                   {"shown", value - setting.bias},
                   {"code", Wide(texts.Code(setting, value, power))},
                   {"text", Wide(texts.Shown().Value(setting, value, power))}};
  if (const auto alias = AliasOf(setting.key); !alias.empty()) json["alias"] = Wide(alias);
  return json;
}

QJsonObject DescribeValueAlone(const ValueTexts& texts, const ModelSetting& setting, int value,
                               std::optional<PowerState> power) {
  return {{"value", value},
          {"code", Wide(texts.Code(setting, value, power))},
          {"text", Wide(texts.Shown().Value(setting, value, power))}};
}

void Values::Add(const ModelSetting& setting, int value, std::optional<PowerState> power) {
  if (!isText_) return json_.append(DescribeValue(texts_, setting, value, power));
  table_.Add({std::string(setting.key), texts_.Shown().Caption(setting),
              texts_.Shown().Value(setting, value, power)});
}

void Values::AddChanged(const ModelSetting& setting, const std::string& before, int value,
                        std::optional<PowerState> power) {
  if (!isText_) return json_.append(DescribeValue(texts_, setting, value, power));
  table_.Add({std::string(setting.key), texts_.Shown().Caption(setting),
              before.empty() ? "?" : before, "->", texts_.Shown().Value(setting, value, power)});
}

void Values::PutInto(Report& report) const {
  report.text = table_.Text();
  report.json["settings"] = json_;
}
