#pragma once

#include <utility>
#include <vector>

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// Edits a well-formed JSON text and keeps the formatting of everything that does not change. New
/// text is formatted like its neighbours.
namespace JsonEdit {

/// One step from a value to a value in it: an object's key or an array's position.
struct Step {
  Step(const char* objectKey) : key(QLatin1String(objectKey)) {}
  Step(QString objectKey) : key(std::move(objectKey)) {}
  Step(qsizetype arrayPosition) : position(arrayPosition) {}

  QString key;
  qsizetype position = -1;
};
using Path = std::vector<Step>;

/// A member of an object; an undefined value means that it is absent. Members are written in their
/// order.
struct Member {
  QString key;
  QJsonValue value;
};
using Members = std::vector<Member>;

// `path` leads from the outermost value to an object or array that must exist, and positions must
// be within it.

/// Sets a member of an object, adds it at the end, or removes it. If the value is an object before
/// and afterwards, only the members that differ are changed.
PROJECTOR_FLEET_EXPORT QByteArray SetMember(const QByteArray& text, const Path& path,
                                            const Member& member);

/// Inserts `element`, a JSON text, after the element `after` of an array, which must not be empty.
PROJECTOR_FLEET_EXPORT QByteArray InsertElement(const QByteArray& text, const Path& path,
                                                qsizetype after, const QByteArray& element);

PROJECTOR_FLEET_EXPORT QByteArray RemoveElement(const QByteArray& text, const Path& path,
                                                qsizetype position);

/// The text of a value.
PROJECTOR_FLEET_EXPORT QByteArray TextAt(const QByteArray& text, const Path& path);

/// Where each element of an array begins and ends.
struct Extent {
  qsizetype begin;
  qsizetype end;
};
PROJECTOR_FLEET_EXPORT std::vector<Extent> Elements(const QByteArray& text, const Path& path);

/// An object as JSON on one line.
PROJECTOR_FLEET_EXPORT QByteArray Write(const Members& members);

}  // namespace JsonEdit

}  // namespace AdvancedControl
