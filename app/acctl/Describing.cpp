#include "app/acctl/Describing.h"

#include <QJsonArray>

#include "app/acctl/Aliases.h"
#include "app/acctl/Report.h"

std::string NameOf(ModelSetting::Kind kind) {
  switch (kind) {
    case ModelSetting::Kind::Number:
      return "number";
    case ModelSetting::Kind::Choice:
      return "choice";
    case ModelSetting::Kind::State:
      return "state";
    default:
      return "action";
  }
}

QJsonObject DescribeSetting(const ValueTexts& texts, const ModelSetting& setting) {
  QJsonObject json{{"key", Wide(setting.key)},
                   {"caption", Wide(texts.Shown().Caption(setting))},
                   {"tab", Wide(texts.Shown().Tab(setting))},
                   {"kind", Wide(NameOf(setting.kind))},
                   {"readable", setting.readable},
                   {"changeable", setting.changeable},
                   {"restorable", setting.Restorable()},
                   {"perSource", setting.IsPerSource()},
                   {"resettable", setting.reset.has_value()}};
  if (const auto alias = AliasOf(setting.key); !alias.empty()) json["alias"] = Wide(alias);
  if (setting.range) {
    json["minimum"] = setting.range->minimum - setting.bias;
    json["maximum"] = setting.range->maximum - setting.bias;
  }
  if (setting.kind == ModelSetting::Kind::Choice) {
    QJsonArray entries;
    for (const ListEntry& entry : setting.entries) {
      entries.append(QJsonObject{{"value", entry.value},
                                 {"code", Wide(texts.Code(setting, entry.value))},
                                 {"text", Wide(texts.Shown().Entry(setting, entry))}});
    }
    json["entries"] = entries;
  }
  return json;
}
