#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QTabBar>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

#include "host/FindLine.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/Soon.h"

namespace {

bool IsHighlighted(const CDialog& dialog, int control) {
  const auto frames = dialog.findChildren<QWidget*>(QStringLiteral("flash"));
  return std::ranges::any_of(frames, [&](const QWidget* frame) {
    return frame->isVisible() && frame->geometry().contains(dialog.GetDlgItem(control)->geometry());
  });
}

struct Finding : testing::Test {
  OpenDialog open{FullModel(5, 30), 0, Answers({{"Get 0x2004", -1}})};
  FindLine& line = Made();
  QTabBar& tabs = *open.Dialog().findChild<QTabBar*>();

  // The line is made by the first search.
  FindLine& Made() {
    QTest::keyClick(&open.Dialog(), Qt::Key_F, Qt::ControlModifier);
    auto& made = *open.Dialog().findChild<FindLine*>();
    QTest::keyClick(&made, Qt::Key_Escape);
    return made;
  }
  void Find(const char* text, const std::vector<Qt::Key>& keys) {
    QTest::keyClick(&open.Dialog(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(line.isVisible()) << text;
    QTest::keyClicks(open.Dialog().focusWidget(), QString::fromUtf8(text), {}, 1);
    QWidget* completions = line.completer()->popup();
    for (const Qt::Key key : keys)
      QTest::keyClick(completions->isVisible() ? completions : &line, key);
    QTest::qWait(0);
  }
};

TEST_F(Finding, GoesToTheRowOfAnyTab) {
  Find("BRIGHT", {Qt::Key_Return});
  EXPECT_FALSE(line.isVisible() || line.completer()->popup()->isVisible());
  EXPECT_EQ(tabs.currentIndex(), 1);
  EXPECT_EQ(open.Dialog().focusWidget(), open.Page().GetDlgItem(20136));
  EXPECT_TRUE(IsHighlighted(open.Page(), 20136));
  Find("bright", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter});
  EXPECT_EQ(tabs.tabText(tabs.currentIndex()), QStringLiteral("Screen"));
  EXPECT_EQ(open.Dialog().focusWidget()->accessibleName(), QStringLiteral("OSD Bright"));
  Find("mirror", {});
  auto* completions = qobject_cast<QAbstractItemView*>(line.completer()->popup());
  Q_EMIT completions->clicked(completions->model()->index(0, 0));  // as by a mouse click
  QTest::qWait(0);
  EXPECT_EQ(tabs.tabText(tabs.currentIndex()), QStringLiteral("Setup"));
  Find("contrast", {Qt::Key_Return});  // disabled: its tab is shown and gets the focus
  EXPECT_TRUE(tabs.currentIndex() == 1 && open.Dialog().focusWidget() == &tabs);
  EXPECT_TRUE(IsHighlighted(open.Page(), 20138)) << "though it cannot have the focus";
  Find("gain g", {Qt::Key_Return});  // its button is disabled
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(open.Dialog().focusWidget(), open.Page().GetDlgItem(20144)) << "the color temperatures";
  QTimer look;
  look.callOnTimeout(&look, [&look] {
    auto* popUp = qobject_cast<CDialog*>(QApplication::activeModalWidget());
    if (popUp == nullptr || !popUp->GetDlgItem(20378)->hasFocus()) return;
    look.stop();
    EXPECT_TRUE(IsHighlighted(*popUp, 20378) && popUp->testAttribute(Qt::WA_KeyboardFocusChange));
    popUp->reject();
  });
  look.start(5);
  QTimer::singleShot(60'000, &look, [] {
    if (auto* modal = QApplication::activeModalWidget()) modal->close();
  });
  QWidget other;
  for (const bool stays : {false, true}) {
    Activate(open.Dialog());
    {
      // The pop-up opens only when the dialog has finished reading.
      const CDialog::Busy reading(&open.Dialog());
      Find("frequency n", {Qt::Key_Return});
      EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
      if (!stays) Activate(other);
    }
    EXPECT_TRUE(stays || !QTest::qWaitFor([&look] { return !look.isActive(); }, 200));
  }
  EXPECT_TRUE(Soon([&look] { return !look.isActive(); }));
  EXPECT_EQ(tabs.tabText(tabs.currentIndex()), QStringLiteral("Option"));
}

TEST_F(Finding, StaysOpenWithoutAMatchAndEscClosesOnlyTheLine) {
  for (const char* text : {"no such row", "reset", ""}) {
    Find(text, {Qt::Key_Return});
    EXPECT_TRUE(line.isVisible());
    EXPECT_EQ(QToolTip::text().toStdString(), "No setting has this name.") << text;
    QToolTip::showText({}, QStringLiteral("-"), &line);
  }
  EXPECT_TRUE(line.text().isEmpty() && line.accessibleName() == "Find a setting");
  EXPECT_EQ(line.placeholderText(), line.accessibleName() + QStringLiteral("…"));
  EXPECT_TRUE(line.isClearButtonEnabled());
  QTest::keyClicks(&line, QStringLiteral("a"));
  auto* completions = qobject_cast<QAbstractItemView*>(line.completer()->popup());
  EXPECT_GE(completions->viewport()->width(), completions->sizeHintForColumn(0));
  QTest::keyClick(completions, Qt::Key_Escape);
  QTest::keyClick(&line, Qt::Key_Escape);
  for (const auto& [text, key] : {std::pair("bright", Qt::Key_Escape), {"", Qt::Key_Tab}}) {
    Find(text, {key});
    EXPECT_FALSE(line.isVisible() || completions->isVisible());
  }
  Find("", {});
  QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason);
  QApplication::sendEvent(&line, &menu);
  EXPECT_TRUE(line.isVisible() && open.Dialog().isVisible());
}

}  // namespace
