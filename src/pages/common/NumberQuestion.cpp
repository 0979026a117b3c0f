#include "pages/common/NumberQuestion.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>

#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/Icons.h"

namespace AdvancedControl {

NumberQuestion::NumberQuestion(const QString& caption, Range range, int present, QWidget* parent)
    : QInputDialog(parent), range_(range) {
  setAttribute(Qt::WA_DeleteOnClose);
  setInputMode(TextInput);
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
