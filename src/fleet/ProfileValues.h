#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "Namespace.h"
#include "fleet/FleetProfile.h"

namespace AdvancedControl {

/// The translation context of messages about profile files.
struct ProfileFile {
  Q_DECLARE_TR_FUNCTIONS(ProfileFile)
};

/// Thrown while a file is read, caught before the reader returns.
struct WrongValue {
  QString path;  ///< As in `JsonLines`.
  QString message;
};

/// The keys that describe a model.
extern const QStringList kModelKeys;
/// All keys that a family, or an entry, may have.
extern const QStringList kFamilyKeys;
extern const QStringList kEntryKeys;

QString Text(std::string_view text);

/// The path of a member, or of an element, of the value at `path`.
QString At(const QString& path, const QString& key);
QString At(const QString& path, int index);

// Each of these throws `WrongValue` if the value at `path` is not as described.

/// An object's keys are all among the known ones, or begin with "x-". The error names these, or
/// `shown` instead.
void CheckKeys(const QJsonObject& object, const QString& path, const QStringList& known,
               const QString& shown = {});
QJsonObject Object(const QJsonValue& value, const QString& path);
/// Of no more than `capacity` elements.
QJsonArray Array(const QJsonValue& value, const QString& path, int capacity);
/// Not empty; in UTF-8.
std::string String(const QJsonValue& value, const QString& path);
/// A whole number within these bounds.
std::int32_t Integer(const QJsonValue& value, const QString& path,
                     std::int32_t minimum = std::numeric_limits<std::int32_t>::min(),
                     std::int32_t maximum = std::numeric_limits<std::int32_t>::max());
/// Checks that the connection is of the kind that the profile's link needs.
void CheckLink(const FleetProfile& profile, const QString& path);

/// Apply the values of a family or an entry over the inherited ones. Each ignores keys that are not
/// its own. A range replaces the inherited one of the same name, any other value the whole
/// inherited value.
void ApplyRanges(const QJsonObject& ranges, const QString& path, CModelInfo2& model);
void ApplyModel(const QJsonObject& settings, const QString& path, ProfileModel& model);
void ApplyProfile(const QJsonObject& settings, const QString& path, FleetProfile& profile);

}  // namespace AdvancedControl
