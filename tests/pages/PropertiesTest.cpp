// Compares with a file how the widgets of the dialog differ from those that Qt makes: where the
// focus may go, what repeats, what has a tool tip. After an intended change, rewrite the file with
// UPDATE_LISTING=1 and review the differences.
// It was made with Qt 6.4.

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

#include "pages/common/NumberQuestion.h"
#include "tests/pages/EachPage.h"
#include "tests/support/Record.h"
#include "toolkit/MessageBox.h"

namespace {

/// A widget of the same kind as Qt makes it.
template <class... Kind>
std::unique_ptr<QWidget> PlainLike(const QWidget& widget) {
  std::unique_ptr<QWidget> plain;
  (void)((qobject_cast<const Kind*>(&widget) && (plain = std::make_unique<Kind>())) || ...);
  return plain;
}

/// What the record says of a property's value; nothing for sizes, colours and the like.
QString Said(const QVariant& value) {
  const bool isGiven = value.typeId() == QMetaType::QPixmap ? !value.value<QPixmap>().isNull()
                       : value.typeId() == QMetaType::QIcon
                           ? !value.value<QIcon>().isNull()
                           : value.typeId() == QMetaType::QString && !value.toString().isEmpty();
  return isGiven ? "given" : value.toString();
}

/// What depends on the machine, the moment or the setting.
constexpr QLatin1String kLeftOut(
    " x y width height minimumWidth minimumHeight maximumWidth maximumHeight font focus visible "
    "isActiveWindow enabled checked value minimum maximum sliderPosition cursorPosition "
    "currentIndex currentText currentData text displayText windowTitle count indent objectName "
    "textInteractionFlags openExternalLinks ");

TEST(Properties, AreAsRecorded) {
  std::map<QString, int> found;
  const auto look = [&](QWidget& window) {
    for (const QWidget* widget : QWidgetList(window.findChildren<QWidget*>() << &window)) {
      if (!widget->isVisible()) continue;
      const auto plain =
          PlainLike<QComboBox, QPushButton, QToolButton, QCheckBox, QSlider, QLineEdit, QLabel,
                    QTabBar, QScrollArea, QFrame, QDialog, QWidget>(*widget);
      QString line = widget->metaObject()->className();
      for (int i = 0; i < plain->metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = plain->metaObject()->property(i);
        const QString name = property.name(), said = Said(property.read(widget));
        if (said != Said(property.read(plain.get())) && !kLeftOut.contains(' ' + name + ' '))
          line += QStringLiteral(", %1 %2").arg(name, said);
      }
      ++found[line];
    }
  };
  const auto withReset = [&](OpenDialog& open, CTabPage& page) {
    if (auto* slider = page.findChild<QSlider*>()) slider->setFocus();
    look(open.Dialog());
  };
  ForEachPage(withReset, {FullModel(5, 30)});
  ForEachPopup(look);
  QWidget window;
  window.setLayoutDirection(Qt::RightToLeft);
  for (const bool asks : {false, true}) {
    QTimer::singleShot(0, &window, [&look] {
      look(*QApplication::activeModalWidget());
      QApplication::activeModalWidget()->close();
    });
    asks ? void(AskYesNo(window, {}, {})) : ShowStopMessage(window, {}, {});
  }
  auto* const question = new NumberQuestion("a", {.minimum = 0, .maximum = 9}, 3, &window);
  question->SetUnit("s");
  question->show();
  look(*question);
  QString now;
  for (const auto& [line, count] : found) now += QStringLiteral("%1 × %2\n").arg(count).arg(line);
  ExpectRecord(TEST_SOURCE_DIR "/pages/Properties.txt", now.toStdString());
}

}  // namespace
