#include "fleet/JsonLines.h"

#include <algorithm>

#include <QByteArrayView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

namespace AdvancedControl {

namespace {

constexpr QByteArrayView kByteOrderMark("\xEF\xBB\xBF");

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

// The code unit of the escape "\uXXXX" at an offset; −1 where there is none.
int EscapedUnit(QByteArrayView text, qsizetype at) {
  if (at + 6 > text.size() || text[at] != '\\' || text[at + 1] != 'u') return -1;
  bool isNumber = false;
  const int unit = text.sliced(at + 2, 4).toInt(&isNumber, 16);
  return isNumber ? unit : -1;
}

// Finds what is wrong in the string that begins at an offset, and moves the offset behind the
// string.
std::optional<JsonLines::Fault> StringFault(const QByteArray& text, qsizetype& at) {
  const qsizetype begin = at++;
  const auto control = [&at] {
    return JsonLines::Fault{at, JsonLines::tr("control character in a text")};
  };
  const qsizetype last = begin + 1 + JsonLines::kMaximumStringBytes;
  while (at < text.size() && at <= last && text[at] != '"') {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x20 || byte == 0x7F) return control();
    if (byte != '\\') {
      ++at;
      continue;
    }
    const int unit = EscapedUnit(text, at);
    if (unit < 0) {
      const char escaped = at + 1 < text.size() ? text[at + 1] : '"';
      if (QByteArrayView("bfnrt").contains(escaped)) return control();
      at += escaped == '"' || escaped == '\\' ? 2 : 1;
      continue;
    }
    if (unit < 0x20 || unit == 0x7F) return control();
    const bool isPair =
        unit >= 0xD800 && unit < 0xDC00 && (EscapedUnit(text, at + 6) & ~0x3FF) == 0xDC00;
    if (unit >= 0xD800 && unit < 0xE000 && !isPair) {
      return JsonLines::Fault{at, JsonLines::tr("half a surrogate pair in a text")};
    }
    at += isPair ? 12 : 6;
  }
  if (at > last) {
    return JsonLines::Fault{
        begin, JsonLines::tr("text of more than %1 bytes").arg(JsonLines::kMaximumStringBytes)};
  }
  ++at;
  return {};
}

}  // namespace

std::optional<JsonLines::Fault> JsonLines::FaultOf(const QByteArray& text, const Limits& limits) {
  if (text.size() > limits.bytes) {
    return Fault{0, tr("more than %1 bytes").arg(limits.bytes)};
  }
  int depth = 0;
  int values = 1;
  for (qsizetype at = 0; at < text.size();) {
    const char c = text[at];
    if (c == '"') {
      if (auto fault = StringFault(text, at)) return fault;
      continue;
    }
    if (c == '{' || c == '[') ++depth;
    if (c == '}' || c == ']') --depth;
    // Every value but the outermost stands behind one of these.
    if (c == '{' || c == '[' || c == ',') ++values;
    if (depth > kMaximumDepth) {
      return Fault{at, tr("nested more than %1 deep").arg(kMaximumDepth)};
    }
    if (values > limits.values) {
      return Fault{at, tr("more than %1 values").arg(limits.values)};
    }
    ++at;
  }
  return {};
}

/// Walks through a text once and calls the visitor for each value with its path, its line, and its
/// key if it has one, until the visitor returns false. Calls `OpenObject` and `CloseObject` before
/// and after an object's members.
template <typename Visitor>
class JsonLines::Walk {
 public:
  Walk(const QByteArray& text, Visitor& visitor) : text_(text), visitor_(visitor) {}

  void Run() {
    if (text_.startsWith(kByteOrderMark)) at_ = kByteOrderMark.size();
    Value(nullptr);
  }

 private:
  void Value(const QString* key) {
    SkipSpace();
    if (!visitor_.Value(path_, line_, key)) at_ = text_.size();
    if (Peek() == '{') {
      Members();
    } else if (Peek() == '[') {
      Elements();
    } else if (Peek() == '"') {
      String();
    } else {
      while (!AtEnd() && Peek() != ',' && Peek() != ']' && Peek() != '}' && !IsSpace(Peek())) ++at_;
    }
    SkipSpace();
  }

  void Members() {
    const qsizetype length = path_.size();
    visitor_.OpenObject();
    ++at_;
    for (SkipSpace(); !AtEnd() && Peek() != '}'; SkipComma()) {
      if (length > 0) path_ += QLatin1Char('.');
      const QString key = String();
      path_ += key;
      SkipSpace();
      ++at_;  // the colon
      Value(&key);
      path_.truncate(length);
    }
    ++at_;
    visitor_.CloseObject();
  }

  void Elements() {
    const qsizetype length = path_.size();
    ++at_;
    int index = 0;
    for (SkipSpace(); !AtEnd() && Peek() != ']'; SkipComma()) {
      path_ += QLatin1Char('[') + QString::number(index++) + QLatin1Char(']');
      Value(nullptr);
      path_.truncate(length);
    }
    ++at_;
  }

  QString String() {
    const qsizetype begin = at_++;
    bool hasEscapes = false;
    for (; !AtEnd() && Peek() != '"'; ++at_) {  // unreachable: every string is closed
      if (Peek() != '\\') continue;
      hasEscapes = true;
      ++at_;
    }
    ++at_;
    const QByteArray quoted = text_.mid(begin, at_ - begin);
    if (!hasEscapes) return QString::fromUtf8(quoted.mid(1, quoted.size() - 2));
    // Escapes are read by the reader that knows them all.
    return QJsonDocument::fromJson('[' + quoted + ']').array().at(0).toString();
  }

  void SkipComma() {
    if (Peek() == ',') ++at_;
    SkipSpace();
  }

  // Strings have no line breaks, so that all of them are passed here.
  void SkipSpace() {
    for (; !AtEnd() && IsSpace(Peek()); ++at_) line_ += Peek() == '\n' ? 1 : 0;
  }

  bool AtEnd() const { return at_ >= text_.size(); }
  char Peek() const { return AtEnd() ? '\0' : text_[at_]; }

  const QByteArray& text_;
  Visitor& visitor_;
  QString path_;
  qsizetype at_ = 0;
  int line_ = 1;
};

int JsonLines::LineOf(const QString& path) const {
  struct Finder {
    void OpenObject() {}
    void CloseObject() {}
    // Values within a value follow it, so that the last one on the way is the innermost.
    bool Value(const QString& at, int atLine, const QString*) {
      const bool onTheWay =
          at.isEmpty() || (wanted.startsWith(at) &&
                           (wanted.size() == at.size() || wanted[at.size()] == QLatin1Char('.') ||
                            wanted[at.size()] == QLatin1Char('[')));
      if (onTheWay) line = atLine;
      return wanted.size() != at.size() || !onTheWay;
    }
    const QString& wanted;
    int line = 1;
  } finder{.wanted = path};
  Walk(text_, finder).Run();
  return finder.line;
}

std::optional<JsonLines::Repeated> JsonLines::RepeatedKey() const {
  struct Finder {
    void OpenObject() { open.emplaceBack(); }
    void CloseObject() { open.removeLast(); }
    bool Value(const QString& at, int line, const QString* key) {
      if (key && open.last().contains(*key)) found = {at, line};
      if (key) open.last().insert(*key);
      return !found;
    }
    QList<QSet<QString>> open;
    std::optional<Repeated> found;
  } finder;
  Walk(text_, finder).Run();
  return finder.found;
}

JsonLines::Place JsonLines::PlaceOf(const QByteArray& text, qsizetype offset) {
  const QByteArray before = text.left(offset);
  const QByteArray line = before.mid(before.lastIndexOf('\n') + 1);
  return {static_cast<int>(before.count('\n')) + 1,
          static_cast<int>(QString::fromUtf8(line).size()) + 1};
}

}  // namespace AdvancedControl
