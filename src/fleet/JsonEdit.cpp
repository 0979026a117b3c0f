#include "fleet/JsonEdit.h"

#include <algorithm>

#include <QByteArrayView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace AdvancedControl {

namespace JsonEdit {

namespace {

constexpr QByteArrayView kByteOrderMark("\xEF\xBB\xBF");

/// A member of an object, with its key, or an element of an array.
struct Child {
  QString key;
  qsizetype begin;  ///< Start of the key, or of the value if there is no key.
  qsizetype value;
  qsizetype end;
};

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

qsizetype SkipSpace(const QByteArray& text, qsizetype at) {
  while (at < text.size() && IsSpace(text[at])) ++at;  // unreachable: JSON does not end so early
  return at;
}

qsizetype EndOfString(const QByteArray& text, qsizetype at) {
  // unreachable: every string is closed
  for (++at; at < text.size() && text[at] != '"'; ++at) at += text[at] == '\\' ? 1 : 0;
  return at + 1;
}

qsizetype EndOfValue(const QByteArray& text, qsizetype at) {
  int depth = 0;
  // unreachable: a value ends with its object or array at the latest
  for (; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '"') {
      at = EndOfString(text, at) - 1;
    } else if (c == '{' || c == '[') {
      ++depth;
    } else if (c == '}' || c == ']') {
      if (depth == 0) return at;
      --depth;
    } else if (depth == 0 && (c == ',' || IsSpace(c))) {
      return at;
    }
  }
  return at;
}

QJsonValue Parsed(const QByteArray& value) {
  return QJsonDocument::fromJson('[' + value + ']').array().at(0);
}

std::vector<Child> ChildrenOf(const QByteArray& text, qsizetype container) {
  std::vector<Child> children;
  const bool isObject = text[container] == '{';
  for (qsizetype at = SkipSpace(text, container + 1);
       // unreachable: every object and array is closed
       at < text.size() && text[at] != '}' && text[at] != ']';) {
    Child child{{}, at, at, at};
    if (isObject) {
      const qsizetype keyEnd = EndOfString(text, at);
      child.key = Parsed(text.mid(at, keyEnd - at)).toString();
      child.value = SkipSpace(text, SkipSpace(text, keyEnd) + 1);
    }
    child.end = EndOfValue(text, child.value);
    children.push_back(child);
    at = SkipSpace(text, child.end);
    // unreachable: its object or array is closed
    if (at < text.size() && text[at] == ',') at = SkipSpace(text, at + 1);
  }
  return children;
}

qsizetype BeginOf(const QByteArray& text, const Path& path) {
  qsizetype at = SkipSpace(text, text.startsWith(kByteOrderMark) ? kByteOrderMark.size() : 0);
  for (const Step& step : path) {
    const std::vector<Child> children = ChildrenOf(text, at);
    at = step.position >= 0 ? children[static_cast<std::size_t>(step.position)].value
                            : std::ranges::find(children, step.key, &Child::key)->value;
  }
  return at;
}

QByteArray Replaced(const QByteArray& text, qsizetype begin, qsizetype end,
                    const QByteArray& with) {
  return text.left(begin) + with + text.mid(end);
}

// The text between the last two children; for a single child, a comma and the space before the
// child.
QByteArray Separator(const QByteArray& text, qsizetype container,
                     const std::vector<Child>& children) {
  if (children.size() > 1) {
    const Child& last = children.back();
    const qsizetype before = children[children.size() - 2].end;
    return text.mid(before, last.begin - before);
  }
  const QByteArray space = text.mid(container + 1, children.front().begin - container - 1);
  return ',' + (space.isEmpty() ? QByteArray(" ") : space);
}

QByteArray Removed(const QByteArray& text, const std::vector<Child>& children, std::size_t child) {
  if (child > 0) return Replaced(text, children[child - 1].end, children[child].end, {});
  const qsizetype end = children.size() > 1 ? children[1].begin : children[0].end;
  return Replaced(text, children[0].begin, end, {});
}

QByteArray Write(const QJsonValue& value) {
  if (value.isObject()) {
    Members members;
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
      members.push_back({member.key(), member.value()});
    }
    return JsonEdit::Write(members);
  }
  // QJsonDocument writes only arrays and objects, so the value is written in an array.
  return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
}

QByteArray Write(const Member& member) {
  return Write(QJsonValue(member.key)) + ": " + Write(member.value);
}

// Sets only the members that differ; the others keep their formatting.
QByteArray SetMembers(QByteArray text, Path path, const Member& object) {
  path.emplace_back(object.key);
  const QJsonObject before = QJsonDocument::fromJson(JsonEdit::TextAt(text, path)).object();
  const QJsonObject after = object.value.toObject();
  for (auto member = after.begin(); member != after.end(); ++member) {
    if (*member != before.value(member.key())) {
      text = JsonEdit::SetMember(text, path, {member.key(), *member});
    }
  }
  for (auto member = before.begin(); member != before.end(); ++member) {
    if (!after.contains(member.key())) {
      text = JsonEdit::SetMember(text, path, {member.key(), QJsonValue::Undefined});
    }
  }
  return text;
}

}  // namespace

QByteArray SetMember(const QByteArray& text, const Path& path, const Member& member) {
  const qsizetype object = BeginOf(text, path);
  const std::vector<Child> children = ChildrenOf(text, object);
  const auto present = std::ranges::find(children, member.key, &Child::key);
  if (present != children.end()) {
    if (member.value.isObject() && text[present->value] == '{') {
      return SetMembers(text, path, member);
    }
    if (!member.value.isUndefined()) {
      return Replaced(text, present->value, present->end, Write(member.value));
    }
    return Removed(text, children, static_cast<std::size_t>(present - children.begin()));
  }
  if (member.value.isUndefined()) return text;
  if (children.empty()) return Replaced(text, object + 1, object + 1, Write(member));
  const qsizetype end = children.back().end;
  return Replaced(text, end, end, Separator(text, object, children) + Write(member));
}

QByteArray InsertElement(const QByteArray& text, const Path& path, qsizetype after,
                         const QByteArray& element) {
  const qsizetype array = BeginOf(text, path);
  const std::vector<Child> children = ChildrenOf(text, array);
  const qsizetype end = children[static_cast<std::size_t>(after)].end;
  return Replaced(text, end, end, Separator(text, array, children) + element);
}

QByteArray RemoveElement(const QByteArray& text, const Path& path, qsizetype position) {
  return Removed(text, ChildrenOf(text, BeginOf(text, path)), static_cast<std::size_t>(position));
}

QByteArray TextAt(const QByteArray& text, const Path& path) {
  const qsizetype begin = BeginOf(text, path);
  return text.mid(begin, EndOfValue(text, begin) - begin);
}

std::vector<Extent> Elements(const QByteArray& text, const Path& path) {
  std::vector<Extent> elements;
  for (const Child& child : ChildrenOf(text, BeginOf(text, path))) {
    elements.push_back({child.begin, child.end});
  }
  return elements;
}

QByteArray Write(const Members& members) {
  QByteArray text = "{";
  for (const Member& member : members) {
    if (member.value.isUndefined()) continue;
    if (text.size() > 1) text += ", ";
    text += Write(member);
  }
  return text + '}';
}

}  // namespace JsonEdit

}  // namespace AdvancedControl
