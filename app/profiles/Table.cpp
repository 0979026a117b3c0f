#include "app/profiles/Table.h"

#include <algorithm>

#include <QList>
#include <QString>
#include <unicode/uchar.h>

int DisplayWidth(std::string_view text) {
  const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  int width = 0;
  for (const uint character : shown.toUcs4()) {
    const int east = u_getIntPropertyValue(static_cast<UChar32>(character), UCHAR_EAST_ASIAN_WIDTH);
    width += east == U_EA_WIDE || east == U_EA_FULLWIDTH ? 2 : 1;
  }
  return width;
}

std::string Table::Text() const {
  std::vector<int> widths;
  for (const auto& row : rows_) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], DisplayWidth(row[i]));
    }
  }
  std::string text;
  for (const auto& row : rows_) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += row[i];
      const int gap = widths[i] - DisplayWidth(row[i]) + 2;
      line.append(static_cast<std::size_t>(gap), ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}
