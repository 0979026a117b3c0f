// Compares the pictures of the controls that draw themselves with a file. After an intended change,
// rewrite it with UPDATE_LISTING=1 and review the differences. So that all machines draw the same,
// the colours are given, and each sign is a block of the font in Blocks.ttf.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include <QFontDatabase>
#include <QScreen>
#include <QTabBar>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

#include "tests/support/DialogDriver.h"
#include "tests/support/Soon.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/CurveView.h"
#include "toolkit/DragBubble.h"
#include "toolkit/Flash.h"
#include "toolkit/FocusRing.h"
#include "toolkit/Icons.h"
#include "toolkit/NumberField.h"
#include "toolkit/StateLabel.h"

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
Control& Placed(Control* control, int x, int y, QSize size) {
  control->setGeometry({{x, y}, size});
  return *control;
}

constexpr int kSliders[][4] = {
    {-10, 10, 4, 3}, {1, 10, 3, 2}, {0, 500, 300, 1}, {-8, 4, -4, 4}, {5, 5, 5, 1}};

TEST(Drawings, AreAsRecorded) {
  const int blocks = QFontDatabase::addApplicationFont(TEST_SOURCE_DIR "/toolkit/Blocks.ttf");
  QFont font(QFontDatabase::applicationFontFamilies(blocks));
  font.setPixelSize(10);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(QFont::NoSubpixelAntialias);
  QWidget stage;
  stage.setFont(font);
  stage.setPalette(PaletteOf(Qt::black, Qt::white));
  stage.resize(100, 600);
  std::ostringstream now, before;
  const auto record = [&](const char* name, int from, int to) {
    Activate(stage);
    QImage image(stage.size(), QImage::Format_RGB32);
    stage.render(&image);
    EXPECT_TRUE(Soon([&] { return stage.screen()->grabWindow(stage.winId()).toImage() == image; }));
    now << '\n' << name << '\n';
    for (int y = from; y < to; ++y) {
      std::string line;
      for (int x = 0; x < image.width(); ++x) line += Sign(image.pixelColor(x, y));
      now << line.erase(line.find_last_not_of(' ') + 1) << '\n';
    }
  };

  auto& curves = Placed(new CurveView(&stage), 0, 0, {90, 60});
  auto& dark = Placed(new CurveView(&stage), 0, 62, {60, 40});
  dark.setPalette(PaletteOf(Qt::white, Qt::black));
  std::vector<StateLabel*> marks;
  for (const int y : {104, 119, 134, 149, 164}) {
    marks.push_back(&Placed(new StateLabel("ab", &stage), 0, y, {100, 12}));
    marks.back()->SetMark(StateLabel::Mark::Idle);
    if (y == 149) marks.back()->setLayoutDirection(Qt::RightToLeft);
    marks.back()->SetShare(1);
    marks.back()->adjustSize();
  }
  const QString theme = QIcon::themeName();
  QIcon::setThemeName("none");
  for (const int i : {0, 1, 2, 3}) {
    auto& icon = Placed(new QLabel(&stage), 25 * i, 180, {24, 20});
    icon.setPixmap(ThemedIcon(static_cast<IconName>(i)).pixmap(icon.size()));
    auto& field = Placed(new NumberField(&stage), 0, 204 + 10 * i, {99, 10});
    field.setFrame(false);
    field.setText("123");
    field.setLayoutDirection(i < 2 ? Qt::LeftToRight : Qt::RightToLeft);
    field.SetUnit(i % 2 ? "ms" : "%", i == 3 ? "1234567890" : "123");
  }
  QIcon::setThemeName(theme);
  std::vector<CSliderCtrl*> sliders;
  for (const auto& [low, high, value, tick] : kSliders) {
    const int y = 270 + 27 * static_cast<int>(sliders.size());
    sliders.push_back(&Placed(new CSliderCtrl(&stage), 5, y, {80, 0}));
    sliders.back()->SetRange(low, high, tick);
    sliders.back()->setValue(value);
    sliders.back()->resize(80, sliders.back()->sizeHint().height());
  }
  sliders[1]->setEnabled(false);
  sliders[3]->setSliderDown(true);
  auto& tabs = Placed(new QTabBar(&stage), 0, 560, {200, 20});
  for (const char* text : {"one", "two"}) tabs.addTab(text);
  auto& control = Placed(new QWidget(&stage), 10, 410, {30, 8});
  control.setFocusPolicy(Qt::TabFocus);
  FocusRing ring(stage);
  record("", 0, 0);
  EXPECT_FALSE(ring.isVisible());
  curves.Show({{.label = "ab", .hue = 0, .accepted = {{0, 0}, {1, .5}}, .values = {1, 2}},
               {.label = "a", .hue = 120, .accepted = {{0, 0}, {1, .5}}, .values = {3, 4}},
               {.hue = 240},
               {.accepted = {{0, .5}, {.5, 1.2}, {1, 1}},
                .tried = {{0, .5}, {.5, -.2}, {1, 1}},
                .values = {5, 6, 7}}},
              6);
  dark.Show({{.hue = 0, .accepted = {{0, 1}, {1, 0}}}});
  record("Three curves, of which two coincide and one is tried. A curve on black.", 0, 102);
  for (const int i : {0, 1, 2, 3, 4}) {
    marks[i]->SetMark(static_cast<StateLabel::Mark>(i));
    marks[i]->SetShare(i == 4 ? std::nullopt : std::optional(.4 * i));
  }
  record("Marks: none, good, idle, attention from right to left, bad.", 104, 176);
  record("Icons: reset, refresh, information, stop.", 180, 200);
  record("Numbers: %, ms, % from right to left, ms from right to left.", 204, 244);
  while (!sliders[2]->hasFocus()) QTest::keyClick(&stage, Qt::Key_Tab);
  const QPalette tips = QToolTip::palette();
  QToolTip::setPalette(PaletteOf(Qt::red, Qt::green));
  for (const auto& [slider, to, letters] : {std::tuple{sliders[0], 5, 2}, {sliders[2], 500, 15}}) {
    AttachDragBubble(*slider, [letters](int) { return QString(letters, 'a'); });
    slider->DragTo(0);
    slider->DragTo(to);
  }
  record("Sliders: with 0, disabled, with the focus, down, without range. Two have a bubble.", 250,
         400);
  EXPECT_EQ(stage.childAt(60, 255), nullptr) << "the bubble is seen only";
  QToolTip::setPalette(tips);
  for (const int tab : {0, 1}) {
    while (!tabs.hasFocus()) QTest::keyClick(&stage, Qt::Key_Tab);
    tabs.setCurrentIndex(tab);
    EXPECT_EQ(ring.geometry(), tabs.tabRect(tab).translated(0, 560).adjusted(3, 3, -3, -3));
  }
  QTest::keyClick(&stage, Qt::Key_Tab);
  Flash(stage, {10, 427, 30, 8});
  Flash(stage, {92, 427, 30, 8});
  record("The focus. A place that is shown, and one at the edge.", 406, 440);
  for (const int y : {408, 426}) EXPECT_EQ(stage.childAt(20, y), nullptr) << "they are seen only";

  constexpr const char* kDrawings = TEST_SOURCE_DIR "/toolkit/Drawings.txt";
  before << std::ifstream(kDrawings).rdbuf();
  if (std::getenv("UPDATE_LISTING")) return void(std::ofstream(kDrawings) << now.str());
  EXPECT_EQ(before.str(), now.str());
}

}  // namespace
