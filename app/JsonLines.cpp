#include "app/JsonLines.h"

#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>

/// Walks through the text once, noting the line of each value. Relies on the text being
/// well-formed.
class JsonLines::Scanner {
 public:
  Scanner(const QByteArray& text, JsonLines& result) : text_(text), result_(result) {}

  void Value(const QString& path) {
    SkipSpace();
    Note(path);
    if (Peek() == '{') {
      Members(path);
    } else if (Peek() == '[') {
      Elements(path);
    } else if (Peek() == '"') {
      String();
    } else {
      while (!AtEnd() && !QByteArray(",]} \t\r\n").contains(Peek())) ++at_;
    }
    SkipSpace();
  }

 private:
  void Members(const QString& path) {
    ++at_;
    for (SkipSpace(); !AtEnd() && Peek() != '}'; SkipComma()) {
      const QString key = String();
      const QString member = path.isEmpty() ? key : path + QLatin1Char('.') + key;
      if (result_.lines_.contains(member) && result_.repeatedKey_.isEmpty()) {
        result_.repeatedKey_ = member;
      }
      SkipSpace();
      ++at_;  // the colon
      Value(member);
    }
    ++at_;
  }

  void Elements(const QString& path) {
    ++at_;
    int index = 0;
    for (SkipSpace(); !AtEnd() && Peek() != ']'; SkipComma()) {
      Value(QStringLiteral("%1[%2]").arg(path).arg(index++));
    }
    ++at_;
  }

  QString String() {
    const qsizetype begin = at_++;
    while (!AtEnd() && Peek() != '"') at_ += Peek() == '\\' ? 2 : 1;
    ++at_;
    // Escapes are read by the reader that knows them all.
    const QByteArray quoted = '[' + text_.mid(begin, at_ - begin) + ']';
    return QJsonDocument::fromJson(quoted).array().at(0).toString();
  }

  void SkipComma() {
    if (Peek() == ',') ++at_;
    SkipSpace();
  }

  void SkipSpace() {
    while (!AtEnd() && QByteArray(" \t\r\n").contains(Peek())) ++at_;
  }

  void Note(const QString& path) {
    line_ += static_cast<int>(text_.mid(noted_, at_ - noted_).count('\n'));
    noted_ = at_;
    result_.lines_.insert(path, line_);
  }

  bool AtEnd() const { return at_ >= text_.size(); }
  char Peek() const { return AtEnd() ? '\0' : text_[at_]; }

  const QByteArray& text_;
  JsonLines& result_;
  qsizetype at_ = 0;
  qsizetype noted_ = 0;
  int line_ = 1;
};

JsonLines::JsonLines(const QByteArray& text) { Scanner(text, *this).Value(QString()); }

int JsonLines::LineOf(QString path) const {
  while (!path.isEmpty() && !lines_.contains(path)) {
    path.truncate(std::max(
        {qsizetype{0}, path.lastIndexOf(QLatin1Char('.')), path.lastIndexOf(QLatin1Char('['))}));
  }
  return lines_.value(path, 1);
}

JsonLines::Place JsonLines::PlaceOf(const QByteArray& text, qsizetype offset) {
  const QByteArray before = text.left(offset);
  const QByteArray line = before.mid(before.lastIndexOf('\n') + 1);
  return {static_cast<int>(before.count('\n')) + 1,
          static_cast<int>(QString::fromUtf8(line).size()) + 1};
}
