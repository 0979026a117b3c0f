#include "app/acctl/Output.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

#include <unicode/uchar.h>

#include "app/acctl/Report.h"

int DisplayWidth(std::string_view text) {
  int width = 0;
  for (const uint character : Wide(text).toUcs4()) {
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
      if (i + 1 == row.size()) break;
      const int gap = widths[i] - DisplayWidth(row[i]) + 2;
      line.append(static_cast<std::size_t>(gap), ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}

bool Print(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(STDOUT_FILENO, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) {
      if (errno != EPIPE) Complain(std::string("cannot write: ") + std::strerror(errno));
      return false;
    }
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

void Complain(std::string_view message) {
  std::fprintf(stderr, "acctl: %.*s\n", static_cast<int>(message.size()), message.data());
}
