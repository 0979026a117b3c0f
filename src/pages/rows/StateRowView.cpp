#include "pages/rows/StateRowView.h"

#include <QLabel>

#include "i18n/LocalizeControlTexts.h"
#include "pages/rows/RowTexts.h"
#include "settings/CatalogNumbers.h"

namespace AdvancedControl {

namespace {

// A state's text is inserted into another catalog text; both may be long.
constexpr int kFramedTextSize = 2048;

}  // namespace

void StateRowView::Bind() { label_ = &Dialog().Item<QLabel>(row_.control); }

void StateRowView::Read(Source source) {
  const auto value = ReadSetting(source);
  if (Projector().IsAbandoned()) return;
  label_->setText(value ? TextOfState(*value) : QStringLiteral("-"));
  Host().ShowState(row_.control, value);
}

QString StateRowView::TextOfState(int value) const {
  const std::vector<ListEntry> texts = row_.texts.Of(Model());
  const int position = PositionOf(texts, value);
  QString text = position >= 0         ? TextOf(texts[static_cast<std::size_t>(position)])
                 : row_.otherwise != 0 ? CatalogString(kListCategory, row_.otherwise, value)
                                       : QString();
  if (row_.frame == 0) return text;
  return QString::fromStdString(
      CatalogText<kFramedTextSize>(kListCategory, row_.frame, text.toStdString()));
}

QString StateRowView::Text() const { return label_->text(); }

}  // namespace AdvancedControl
