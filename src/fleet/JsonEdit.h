#pragma once

#include <utility>
#include <vector>

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include "Namespace.h"

namespace AdvancedControl {

/// Changes to a well-formed JSON text that leave everything else in it as it was written. What is
/// added is laid out like what stands beside it.
namespace JsonEdit {

/// Where a value is: keys and positions from the outermost value on.
struct Step {
  Step(const char* objectKey) : key(QLatin1String(objectKey)) {}
  Step(QString objectKey) : key(std::move(objectKey)) {}
  Step(qsizetype arrayPosition) : position(arrayPosition) {}

  QString key;
  qsizetype position = -1;
};
using Path = std::vector<Step>;

/// Members in the order in which they are written. An undefined value stands for no member.
struct Member {
  QString key;
  QJsonValue value;
};
using Members = std::vector<Member>;

// `path` must lead to an object or array of the text; positions must be in it.

/// Gives an object's member this value, adds it as the last one, or takes it out. Of a value that
/// is an object before and afterwards, only those members are touched that differ.
QByteArray SetMember(const QByteArray& text, const Path& path, const Member& member);

/// Puts an element, itself JSON, behind the one at `after` of an array that is not empty.
QByteArray InsertElement(const QByteArray& text, const Path& path, qsizetype after,
                         const QByteArray& element);

QByteArray RemoveElement(const QByteArray& text, const Path& path, qsizetype position);

/// The text of a value.
QByteArray TextAt(const QByteArray& text, const Path& path);

/// Where each element of an array begins and ends.
struct Extent {
  qsizetype begin;
  qsizetype end;
};
std::vector<Extent> Elements(const QByteArray& text, const Path& path);

/// An object on one line.
QByteArray Write(const Members& members);

}  // namespace JsonEdit

}  // namespace AdvancedControl
