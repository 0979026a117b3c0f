#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QJsonArray>
#include <QJsonObject>

#include "app/acctl/Arguments.h"
#include "app/acctl/Report.h"
#include "app/acctl/ValueCodes.h"
#include "app/profiles/ProjectorAccess.h"
#include "app/profiles/Table.h"

/// A setting with its value, for programs.
QJsonObject DescribeValue(const ValueTexts& texts, const ModelSetting& setting, int value,
                          std::optional<PowerState> power);
/// A value alone: device value, code and text.
QJsonObject DescribeValueAlone(const ValueTexts& texts, const ModelSetting& setting, int value,
                               std::optional<PowerState> power = {});

/// Settings with their values, for people or for programs.
class Values {
 public:
  /// `format` is that of the output.
  Values(const ValueTexts& texts, Format format) : texts_(texts), isText_(format == Format::Text) {}

  void Add(const ModelSetting& setting, int value, std::optional<PowerState> power);
  /// A value that was changed, with the text of the value before; empty if that is unknown.
  void AddChanged(const ModelSetting& setting, const std::string& before, int value,
                  std::optional<PowerState> power);
  void PutInto(Report& report) const;

 private:
  const ValueTexts& texts_;
  const bool isText_;
  Table table_;
  QJsonArray json_;
};
