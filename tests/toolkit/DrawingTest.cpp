// Compares with files what the controls that draw themselves look like, and where controls stand
// and how they are named. After an intended change, rewrite the files with UPDATE_LISTING=1 and
// review the differences. They were made with Qt 6.4. So that all machines draw the same, the
// colours are given, and each sign is a block of the font in Blocks.ttf.

#include <QAccessible>
#include <QDebug>
#include <QHelpEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QStyleFactory>
#include <QTabBar>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

#include "tests/support/Blocks.h"
#include "tests/support/Record.h"
#include "tests/support/Soon.h"
#include "tests/toolkit/SampleDialog.h"
#include "toolkit/AnnouncedLabel.h"
#include "toolkit/CurveView.h"
#include "toolkit/DragBubble.h"
#include "toolkit/Flash.h"
#include "toolkit/FocusRing.h"
#include "toolkit/Icons.h"
#include "toolkit/NumberField.h"
#include "toolkit/StateLabel.h"
#include "toolkit/TemplateRows.h"

namespace {

/// A letter for red, yellow, green, cyan, blue or magenta, in lower case if it is pale, or one of
/// " .:*#" from white to black.
char Sign(const QColor& color) {
  const auto [low, high] = std::minmax({color.red(), color.green(), color.blue()});
  if (high - low < 25) return " .:*#"[(255 - high + 32) / 64];
  return (high - low < 140 ? "rygcbm" : "RYGCBM")[(color.hsvHue() + 30) / 60 % 6];
}

QPalette PaletteOf(const QColor& text, const QColor& behind) {
  QPalette palette(text, behind, behind, Qt::darkGray, Qt::darkGray, text, text, behind, behind);
  palette.setColor(QPalette::Highlight, Qt::blue);
  palette.setColor(QPalette::ToolTipBase, behind);
  return palette;
}

template <class Control>
Control& Placed(Control* control, int x, int y, int width, int height) {
  control->setGeometry(x, y, width, height);
  return *control;
}

constexpr int kSliders[][4] = {
    {-10, 10, 4, 3}, {-28, -1, -9, 1}, {0, 500, 300, 1}, {-14, 7, -4, 1}, {5, 5, 5, 1}};

TEST_F(DialogTest, ControlsLookAsRecorded) {
  QWidget stage;
  stage.setFont(Blocks(10));
  stage.setPalette(PaletteOf(Qt::black, Qt::white));
  QToolTip::setPalette(PaletteOf(Qt::black, Qt::green));
  stage.resize(100, 560);
  std::ostringstream now;
  const auto record = [&](const char* name, int from, int to) {
    QCoreApplication::processEvents();
    const QImage image = stage.screen()->grabWindow(stage.winId()).toImage();
    now << '\n' << name << '\n';
    for (int y = from; y < to; ++y) {
      std::string line;
      for (int x = 0; x < image.width(); ++x) line += Sign(image.pixelColor(x, y));
      now << line.erase(line.find_last_not_of(' ') + 1) << '\n';
    }
  };

  auto& curve = Placed(new CurveView(&stage), 0, 0, 90, 60);
  curve.Show({{.label = "ab", .hue = 0, .accepted = {{0, 0}, {1, .5}}, .values = {1, 2}},
              {.label = "a", .hue = 120, .accepted = {{0, 0}, {1, .5}}, .values = {3, 4}},
              {.hue = 240},
              {.accepted = {{0, .5}, {.5, 1.2}, {.9, 1}},
               .tried = {{0, .5}, {.5, -.2}, {.9, 1}},
               .values = {5, 6, 7},
               .movable = true}},
             6);
  auto& dark = Placed(new CurveView(&stage), 0, 62, 60, 40);
  dark.setPalette(PaletteOf(Qt::white, Qt::black));
  for (const auto& [y, text] :
       {std::pair{64, "abcd"}, {76, "abcdefghijk"}, {88, "\u200fabcdefghijk"}}) {
    auto& said = Placed(new AnnouncedLabel(text, &stage), 64, y, 24, 12);
    QHelpEvent help(QEvent::ToolTip, {}, {});
    QApplication::sendEvent(&said, &help);
    EXPECT_EQ(QToolTip::text(), y == 64 ? QString() : Qt::convertFromPlainText(text));
  }
  const QString theme = QIcon::themeName();
  QIcon::setThemeName("none");
  for (const int i : {0, 1, 2, 3, 4}) {
    auto& mark = Placed(new StateLabel("ab", &stage), 0, 104 + 15 * i, 0, 0);
    if (i == 3) mark.setLayoutDirection(Qt::RightToLeft);
    mark.SetMark(static_cast<StateLabel::Mark>(i));
    mark.SetShare(i == 4 ? std::nullopt : std::optional(.9));
    mark.adjustSize();
    auto& slider = Placed(new CSliderCtrl(&stage), 5, 270 + 27 * i, 80, 27);
    slider.SetRange(kSliders[i][0], kSliders[i][1], kSliders[i][3]);
    slider.setValue(kSliders[i][2]);
    slider.setEnabled(i != 1);
    slider.setSliderDown(i == 3);
    slider.setLayoutDirection(i == 3 ? Qt::RightToLeft : Qt::LeftToRight);
    if (i == 3) slider.setStyleSheet("::handle:pressed { background: red; }");
    // A style with a handle as high as the slider.
    if (i == 0)
      slider.setStyle(QStyleFactory::create("windows")), slider.style()->setParent(&slider);
    auto& field = Placed(new NumberField(&stage), 0, 200 + 10 * i, 99, 10);
    field.setFrame(false);
    if (i < 4) field.setText("123");
    field.setLayoutDirection(i < 2 ? Qt::LeftToRight : Qt::RightToLeft);
    field.SetUnit(i % 2 ? "ms" : "%", i == 3 ? "1234567890" : "123");
    if (i == 4) break;
    auto& icon = Placed(new QLabel(&stage), 25 * i, 180, 24, 20);
    icon.setPixmap(ThemedIcon(static_cast<IconName>(i)).pixmap(icon.size()));
  }
  QIcon::setThemeName(theme);
  auto& tabs = Placed(new QTabBar(&stage), 0, 500, 200, 20);
  for (const char* text : {"one", "two"}) tabs.addTab(text);
  auto& part = Placed(new QWidget(&stage), 3, 405, 60, 30);
  Placed(new QWidget(&part), 7, 5, 30, 8).setFocusPolicy(Qt::TabFocus);
  FocusRing ring(stage);
  stage.show();
  EXPECT_FALSE(ring.isVisible());
  Activate(stage);
  QCoreApplication::processEvents();  // what changes now must be drawn again
  dark.Show({{.hue = 0, .accepted = {{0, 1}, {1, 0}}}});
  for (int i = 0; i < 4; ++i) stage.findChildren<StateLabel*>()[i]->SetShare(.4 * i);
  const auto sliders = stage.findChildren<CSliderCtrl*>();
  for (const auto& [slider, to, letters] : {std::tuple{sliders[0], 5, 2}, {sliders[2], 500, 15}}) {
    AttachDragBubble(*slider, [letters = letters](int) { return QString(letters, 'a'); });
    slider->DragTo(0);
    slider->DragTo(to);
  }
  const auto tabTo = [&stage](QWidget& to) {
    for (int i = 0; i < 30 && !to.hasFocus(); ++i, QCoreApplication::processEvents())
      QTest::keyClick(&stage, Qt::Key_Tab);
    EXPECT_TRUE(to.hasFocus());
  };
  for (const int i : {3, 2}) tabTo(*sliders[i]);
  record("Three curves: two coincide, one is tried. One on black. Texts, two too long.", 0, 102);
  record("Marks: none, good, idle, attention from right to left, bad.", 104, 176);
  record("Icons: reset, refresh, information, stop.", 180, 200);
  record("Numbers: %, ms, % from right to left, ms from right to left, none.", 200, 250);
  record("Sliders: with 0, disabled, focused, from right to left, without range. Two with bubbles.",
         250, 406);

  tabTo(tabs);
  tabs.setCurrentIndex(1);
  for (const int y : {500, 495}) {
    tabs.move(0, y);
    EXPECT_EQ(ring.geometry(), tabs.tabRect(1).translated(0, y).adjusted(3, 3, -3, -3));
    EXPECT_TRUE(ring.isVisible());
  }
  QTest::keyClick(&stage, Qt::Key_Tab);
  for (const int x : {10, 92}) Flash(stage, {x, 427, 30, 8});
  record("The focus. A place that is shown, and one at the edge.", 406, 440);
  for (const QPoint at : {QPoint(60, 265), {20, 408}, {20, 426}})
    EXPECT_TRUE(stage.childAt(at) == nullptr || stage.childAt(at) == &part) << "not for the mouse";
  QTest::mouseClick(sliders[4], Qt::LeftButton);
  EXPECT_TRUE(sliders[4]->hasFocus() && !ring.isVisible()) << "the ring is for keys";
  stage.findChild<NumberField*>()->setFocus();
  tabs.setCurrentIndex(0);
  EXPECT_FALSE(ring.isVisible()) << "a field takes the focus of the mouse only";
  std::vector<int> moves;
  QObject::connect(&curve, &CurveView::Dragged, [&](int value, double height) {
    moves.push_back(value);
    EXPECT_NEAR(height, .5, .03);
  });
  QObject::connect(&curve, &CurveView::Dropped, [&](int value) { moves.push_back(-value); });
  const QPoint at = curve.PlaceOf({.69, 1.1}).toPoint();  // within reach of two points
  QTest::mouseMove(&curve, at);
  EXPECT_EQ(curve.cursor().shape(), Qt::SizeVerCursor);
  QTest::mousePress(&curve, Qt::LeftButton, {}, at);
  QTest::mouseClick(&curve, Qt::RightButton, {}, {9, 9});
  QTest::mouseMove(&curve, curve.PlaceOf({.69, .5}).toPoint());
  QTest::mouseRelease(&curve, Qt::LeftButton, {}, at);
  QTest::mouseClick(&curve, Qt::LeftButton, {}, at);
  EXPECT_EQ(moves, (std::vector{6, -6})) << "the nearest point, by the left button";
  delete sliders[0];
  sliders[2]->setEnabled(false);
  sliders[2]->setValue(1);
  EXPECT_FALSE(stage.findChildren<QLabel*>().last()->isVisible()) << "though its value changes";
  EXPECT_TRUE(Soon([&] { return stage.findChildren<QLabel*>().size() == 12; })) << "no bubbles";
  EXPECT_TRUE(Soon([&] { return stage.findChild<QWidget*>("flash") == nullptr; }));
  ExpectRecord(TEST_SOURCE_DIR "/toolkit/Drawings.txt", now.str());
}

struct KindsDialog : CDialog {
  using CDialog::CDialog;
  bool OnInitDialog() override {
    GetDlgItem(29)->setFont(Blocks(99));  // whose row is absent
    ShowRow(27, false);
    ShowNotice("A notice");
    delete findChild<AnnouncedLabel*>();
    PlaceBesideClose(*new AnnouncedLabel(QString(160, 'b'), this));
    return true;
  }
};

TEST_F(DialogTest, ControlsStandAndAreNamedAsRecorded) {
  QString now;
  QDebug record = QDebug(&now).nospace();
  dialog.setFont(Blocks(20));
  QWidget window;
  window.resize(800, 300);
  window.show();
  for (const auto& [name, flags, direction, size] :
       {std::tuple{"A page", Qt::Widget, Qt::LeftToRight, 10},
        {"A page from right to left", Qt::Widget, Qt::RightToLeft, 10},
        {"A dialog", Qt::Dialog, Qt::LeftToRight, 10},
        {"A large dialog", Qt::Dialog, Qt::LeftToRight, 120},
        {"A large dialog from right to left", Qt::Dialog, Qt::RightToLeft, 120}}) {
    KindsDialog shown(902, &window);
    shown.setWindowFlags(flags);
    shown.setLayoutDirection(direction);
    shown.setFont(Blocks(size));
    ASSERT_TRUE(shown.Create() && shown.Create());
    const TemplateRows* const pages[] = {&dialog.Rows(), &shown.Rows()};
    if (!shown.isWindow()) TemplateRows::ShareCaptionWidths(pages);
    if (!shown.isWindow()) shown.setGeometry(0, 0, 700, 200);
    shown.isWindow() ? Activate(shown) : shown.show();
    shown.Item<QLabel>(19).setText("Better");
    shown.GetDlgItem(17)->setFont(Blocks(size + 8));
    QCoreApplication::processEvents();
    shown.Item<StateLabel>(19).SetShare(.5);
    QCoreApplication::processEvents();
    QAccessibleInterface& access = *QAccessible::queryAccessibleInterface(&shown);
    record << '\n'
           << name << ' ' << access.role() << ' ' << shown.windowTitle() << ' ' << shown.sizeHint()
           << ' ' << shown.size() << '\n';
    for (int i = 0; i < access.childCount(); ++i) {
      QAccessibleInterface& child = *access.child(i);
      auto& control = static_cast<QWidget&>(*child.object());
      const auto* label = qobject_cast<const QLabel*>(&control);
      record << control.geometry() << ' ' << child.role() << ' ' << child.text(QAccessible::Name)
             << ' ' << child.text(QAccessible::Description) << ' '
             << child.text(QAccessible::Accelerator)
             << (child.state().checkable ? " checkable" : "");
      if (label && label->buddy()) record << " of " << label->buddy()->metaObject()->className();
      record << '\n';
      EXPECT_EQ(access.indexOfChild(&child), i);
    }
    if (auto* area = shown.findChild<QScrollArea*>()) record << area->widget()->sizeHint() << '\n';
    for (const int id : {27, 99}) shown.Highlight(id);
    EXPECT_EQ(shown.findChild<QWidget*>("flash"), nullptr) << "no visible control";
    for (const int id : {5, 23, 19, 7, 3}) {
      QWidget& control = *shown.GetDlgItem(id);
      id == 19 ? shown.Highlight(id) : control.setFocus();
      EXPECT_EQ(control.visibleRegion().boundingRect(), control.rect()) << "scrolled to";
    }
    if (size != 10) continue;
    for (const int id : {1, 8, 13}) shown.ShowRow(id, false);
    record << "Without numbers: " << shown.layout()->totalSizeHint() << '\n';
  }
  ExpectRecord(TEST_SOURCE_DIR "/toolkit/Places.txt", now.toStdString());
}

}  // namespace
