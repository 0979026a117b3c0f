#include "i18n/LocalizeControlTexts.h"

#include <charconv>
#include <optional>
#include <string>

#include <QWidget>

#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"
#include "toolkit/WindowText.h"

namespace AdvancedControl {

namespace {

// The number of a caption with this format: blanks, a decimal integer, ";" and at least one
// character that is not a blank.
std::optional<int> CaptionNumber(const QString& caption) {
  const auto separator = caption.indexOf(QLatin1Char(';'));
  if (separator < 0 || QStringView(caption).mid(separator + 1).trimmed().isEmpty()) return {};
  const std::string digits = caption.left(separator).toStdString();
  std::size_t begin = digits.find_first_not_of(" \t\r\n\v\f");
  if (begin == std::string::npos) return {};
  if (digits[begin] == '+' && begin + 1 < digits.size() && digits[begin + 1] != '-') ++begin;
  int number = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data() + begin, end, number);
  if (error != std::errc() || stop != end) return {};
  return number;
}

void LocalizeCaption(int category, QWidget& window) {
  if (const auto number = CaptionNumber(WindowText(window))) {
    SetWindowText(window, CatalogString(category, *number));
  }
}

}  // namespace

void LocalizeControlTexts(int category, QWidget& dialog) {
  if (!IsCatalogLoaded()) return;
  if (IsRightToLeft(ShownLanguageId())) dialog.setLayoutDirection(Qt::RightToLeft);
  const CatalogBatch batch;
  LocalizeCaption(category, dialog);
  for (QObject* child : dialog.children()) {
    if (child->isWidgetType()) LocalizeCaption(category, *static_cast<QWidget*>(child));
  }
}

}  // namespace AdvancedControl
