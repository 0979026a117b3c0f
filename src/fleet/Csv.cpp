#include "fleet/Csv.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QCoreApplication>
#include <QStringDecoder>

namespace AdvancedControl {

namespace {

constexpr qsizetype kMostBytes = qsizetype{64} << 20;
constexpr std::size_t kMostRows = 100'000;
constexpr qsizetype kMostColumns = 256;
constexpr QChar kQuote = u'"';

struct Csv {
  Q_DECLARE_TR_FUNCTIONS(Csv)
};

// The characters of Windows' Western code page in the range where Latin-1 has control characters.
constexpr std::array<char16_t, 32> kWindows{
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

QString FromWindows(const QByteArray& bytes) {
  QString text = QString::fromLatin1(bytes);
  for (QChar& c : text) {
    if (c >= u'\x80' && c < u'\xA0') c = QChar(kWindows.at(c.unicode() - 0x80U));
  }
  return text;
}

// Whether the text is UTF-16 without a byte order mark: among the first characters, most have a
// byte that is 0.
bool HasZeros(const QByteArray& bytes, qsizetype first) {
  constexpr qsizetype kLooked = 200;
  const qsizetype end = std::min(bytes.size(), kLooked);
  qsizetype zeros = 0;
  for (qsizetype i = first; i < end; i += 2) zeros += bytes[i] == '\0' ? 1 : 0;
  return end >= 4 && 4 * zeros > end;
}

// Whether a spreadsheet would take it for a formula, or whether it already has the apostrophe that
// prevents this.
bool LooksLikeFormula(QStringView cell) {
  while (cell.startsWith(u'\'')) cell = cell.sliced(1);
  return !cell.isEmpty() && QStringView(u"=+-@\t\r").contains(cell.front());
}

/// Walks through the rows of a text.
class Reader {
 public:
  explicit Reader(const QString& text) : text_(text) {}

  CsvTable Read();

 private:
  bool AtEnd() const { return at_ >= text_.size(); }
  bool AtLineEnd() const { return AtEnd() || text_[at_] == u'\n' || text_[at_] == u'\r'; }
  void SkipLineEnd();
  void SkipLine();
  void FindSeparator();
  bool ReadRow(CsvRow& row, QString& reason);
  bool ReadQuoted(QString& cell);

  const QString& text_;
  qsizetype at_ = 0;
  int line_ = 1;
  QChar separator_ = u',';
};

void Reader::SkipLineEnd() {
  if (AtEnd()) return;
  const bool isPair = text_[at_] == u'\r' && at_ + 1 < text_.size() && text_[at_ + 1] == u'\n';
  at_ += isPair ? 2 : 1;
  ++line_;
}

void Reader::SkipLine() {
  while (!AtLineEnd()) ++at_;
}

void Reader::FindSeparator() {
  constexpr QStringView kDeclared = u"sep=";
  if (QStringView(text_).sliced(at_).startsWith(kDeclared, Qt::CaseInsensitive) &&
      text_.size() > at_ + kDeclared.size()) {
    separator_ = text_[at_ + kDeclared.size()];
    return SkipLine();
  }
  std::array<std::pair<QChar, int>, 3> counts{{{u',', 0}, {u';', 0}, {u'\t', 0}}};
  bool isQuoted = false;
  for (qsizetype i = at_;
       i < text_.size() && (isQuoted || (text_[i] != u'\n' && text_[i] != u'\r')); ++i) {
    if (text_[i] == kQuote) isQuoted = !isQuoted;
    for (auto& [separator, count] : counts) count += !isQuoted && text_[i] == separator ? 1 : 0;
  }
  separator_ = std::ranges::max_element(counts, {}, &std::pair<QChar, int>::second)->first;
}

// From behind the opening mark to behind the closing one.
bool Reader::ReadQuoted(QString& cell) {
  for (++at_; !AtEnd(); ++at_) {
    if (text_[at_] == kQuote) {
      ++at_;
      if (AtEnd() || text_[at_] != kQuote) return true;
    } else if (AtLineEnd()) {
      cell += u'\n';
      SkipLineEnd();
      --at_;
      continue;
    }
    cell += text_[at_];
  }
  return false;
}

// Behind the row's last line afterwards; what is wrong leaves the reader at the end of its first.
bool Reader::ReadRow(CsvRow& row, QString& reason) {
  const qsizetype begin = at_;
  const auto give = [&](const QString& why) {
    reason = why;
    at_ = begin;
    line_ = row.line;
    SkipLine();
    return false;
  };
  for (;;) {
    QString cell;
    while (!AtEnd() && text_[at_] == u' ') ++at_;
    if (!AtEnd() && text_[at_] == kQuote) {
      if (!ReadQuoted(cell)) return give(Csv::tr("a quotation mark is not closed"));
      while (!AtEnd() && text_[at_] == u' ') ++at_;
      if (!AtLineEnd() && text_[at_] != separator_) {
        return give(Csv::tr("a text goes on behind its closing quotation mark"));
      }
    } else {
      const qsizetype first = at_;
      while (!AtLineEnd() && text_[at_] != separator_) ++at_;
      cell = text_.sliced(first, at_ - first).trimmed();
    }
    if (cell.startsWith(u'\'') && LooksLikeFormula(cell)) cell.remove(0, 1);
    row.cells.append(cell);
    if (row.cells.size() > kMostColumns) {
      return give(Csv::tr("more than %1 cells").arg(kMostColumns));
    }
    if (AtLineEnd()) break;
    ++at_;
  }
  SkipLineEnd();
  return true;
}

CsvTable Reader::Read() {
  CsvTable table;
  while (!AtEnd() && AtLineEnd()) SkipLineEnd();
  FindSeparator();
  while (!AtEnd()) {
    CsvRow row{line_, {}};
    QString reason;
    if (!ReadRow(row, reason)) {
      table.faults.push_back({row.line, reason});
      if (table.header.isEmpty()) return table;
      continue;
    }
    if (std::ranges::all_of(row.cells, &QString::isEmpty)) continue;
    if (table.header.isEmpty()) {
      table.header = row.cells;
      continue;
    }
    while (row.cells.size() > table.header.size() && row.cells.last().isEmpty()) {
      row.cells.removeLast();
    }
    if (row.cells.size() > table.header.size()) {
      table.faults.push_back({row.line, Csv::tr("%1 cells, but the header has %2")
                                            .arg(row.cells.size())
                                            .arg(table.header.size())});
      continue;
    }
    if (table.rows.size() == kMostRows) {
      table.faults.push_back({row.line, Csv::tr("more than %1 rows").arg(kMostRows)});
      break;
    }
    while (row.cells.size() < table.header.size()) row.cells.append(QString());
    table.rows.push_back(std::move(row));
  }
  if (table.header.isEmpty()) table.faults.push_back({1, Csv::tr("there is no header")});
  return table;
}

}  // namespace

QString DecodeText(const QByteArray& bytes) {
  if (const auto marked = QStringConverter::encodingForData(bytes)) {
    return QStringDecoder(*marked)(bytes);
  }
  if (HasZeros(bytes, 1)) return QStringDecoder(QStringDecoder::Utf16LE)(bytes);
  if (HasZeros(bytes, 0)) return QStringDecoder(QStringDecoder::Utf16BE)(bytes);
  QStringDecoder utf8(QStringDecoder::Utf8);
  const QString text = utf8(bytes);
  return utf8.hasError() ? FromWindows(bytes) : text;
}

CsvTable ParseCsv(const QByteArray& bytes) {
  if (bytes.size() > kMostBytes) {
    return {
        .header = {}, .rows = {}, .faults = {{1, Csv::tr("more than %1 bytes").arg(kMostBytes)}}};
  }
  const QString text = DecodeText(bytes);
  return Reader(text).Read();
}

QByteArray WriteCsv(const std::vector<QStringList>& rows) {
  constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
  QString text;
  for (const QStringList& row : rows) {
    for (qsizetype i = 0; i < row.size(); ++i) {
      QString cell = row[i];
      if (LooksLikeFormula(cell)) cell.prepend(u'\'');
      const bool isQuoted =
          std::ranges::any_of(cell,
                              [](QChar c) { return QStringView(u",;\t\"\r\n").contains(c); }) ||
          cell != cell.trimmed();
      if (isQuoted) cell = kQuote + cell.replace(kQuote, QStringLiteral("\"\"")) + kQuote;
      if (i > 0) text += u',';
      text += cell;
    }
    text += QStringLiteral("\r\n");
  }
  return kByteOrderMark + text.toUtf8();
}

}  // namespace AdvancedControl
