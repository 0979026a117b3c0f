#include "pages/common/RowMenu.h"

#include <QApplication>
#include <QClipboard>

#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/Contrast.h"

namespace AdvancedControl {

namespace {

QString ListString(int number) { return CatalogString(kListCategory, number); }

}  // namespace

RowMenu::RowMenu(const Row& row, QWidget* parent) : QMenu(parent) {
  connect(this, &QMenu::aboutToHide, this, &QObject::deleteLater);
  setPalette(WithReadableDisabledTexts(palette()));
  for (const QString& note : row.notes.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) AddText(note);
  if (!row.opened.isEmpty()) {
    AddText(CatalogString(kListCategory, ListText::WhenOpened, row.opened.toStdString()));
  }
  addSeparator();
  if (row.putBack != Choice::Absent) {
    addAction(ListString(ListText::PutBack), this, &RowMenu::PutBack)
        ->setEnabled(row.putBack == Choice::Usable);
  }
  if (row.setToWanted != Choice::Absent) {
    addAction(CatalogString(kListCategory, ListText::SetToWanted, row.wanted.toStdString()), this,
              &RowMenu::SetToWanted)
        ->setEnabled(row.setToWanted == Choice::Usable);
  }
  if (row.enterValue != Choice::Absent) {
    addAction(ListString(ListText::EnterValue), this, &RowMenu::EnterValue)
        ->setEnabled(row.enterValue == Choice::Usable);
  }
  const QString copied =
      row.value.isEmpty() ? row.caption : row.caption + QStringLiteral(": ") + row.value;
  addAction(ListString(ListText::Copy), [copied] { QApplication::clipboard()->setText(copied); });
}

void RowMenu::AddText(const QString& text) { addAction(text)->setEnabled(false); }

}  // namespace AdvancedControl
