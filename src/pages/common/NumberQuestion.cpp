#include "pages/common/NumberQuestion.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/Icons.h"

namespace AdvancedControl {

namespace {

constexpr int kUnitMargin = 6;  // in pixels

}  // namespace

NumberQuestion::NumberQuestion(const QString& caption, Range range, int present, QWidget* parent)
    : QInputDialog(parent), range_(range) {
  setAttribute(Qt::WA_DeleteOnClose);
  setTextValue(QString::number(present));
  setWindowTitle(caption);
  setLabelText(range == kUnbounded
                   ? caption
                   : CatalogString(kListCategory, ListText::RangeNote, std::int64_t{range.minimum},
                                   std::int64_t{range.maximum}));
  setOkButtonText(CatalogString(kCaptionCategory, Caption::Ok));
  setCancelButtonText(CatalogString(kCaptionCategory, Caption::Cancel));
  RemoveForeignButtonIcons(*this);
}

void NumberQuestion::SetUnit(const QString& unit) {
  auto* field = findChild<QLineEdit*>();
  auto* label = new QLabel(unit);
  auto* inside = new QHBoxLayout(field);
  inside->setContentsMargins(kUnitMargin, 0, kUnitMargin, 0);
  inside->addStretch(1);
  inside->addWidget(label);
  const int room = label->sizeHint().width() + kUnitMargin;
  field->isRightToLeft() ? field->setTextMargins(room, 0, 0, 0)
                         : field->setTextMargins(0, 0, room, 0);
  field->setAccessibleDescription(unit);
}

void NumberQuestion::done(int result) {
  if (result != Accepted) return QInputDialog::done(result);
  bool isNumber = false;
  const int number = textValue().toInt(&isNumber);
  if (isNumber && number >= range_.minimum && number <= range_.maximum) {
    QInputDialog::done(result);
    Q_EMIT Entered(number);
    return;
  }
  setLabelText(CatalogString(kListCategory, ListText::NumberWanted, std::int64_t{range_.minimum},
                             std::int64_t{range_.maximum}));
  findChild<QLineEdit*>()->selectAll();
  QAccessibleEvent event(findChild<QLabel*>(), QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

}  // namespace AdvancedControl
