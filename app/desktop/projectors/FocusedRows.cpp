#include "app/desktop/projectors/FocusedRows.h"

#include <QWidget>

namespace {

constexpr float kMutedShare = 0.3F;

/// So much of the one color, and of the other the rest.
QColor Mixed(const QColor& color, const QColor& other, float share) {
  const auto part = [share](float a, float b) { return a * share + b * (1 - share); };
  return QColor::fromRgbF(part(color.redF(), other.redF()), part(color.greenF(), other.greenF()),
                          part(color.blueF(), other.blueF()));
}

}  // namespace

bool FocusedRows::IsStrong(const QStyleOptionViewItem& option) {
  return option.state.testFlag(QStyle::State_Selected) && option.widget != nullptr &&
         option.widget->hasFocus();
}

void FocusedRows::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  IsolatedTexts::initStyleOption(option, index);
  if (IsStrong(*option)) return;
  QPalette& palette = option->palette;
  palette.setColor(QPalette::Highlight, Mixed(palette.color(QPalette::Highlight),
                                              palette.color(QPalette::Base), kMutedShare));
  palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
}
