#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

#include "host/FindLine.h"
#include "tests/support/DialogDriver.h"

namespace {

struct Finding {
  OpenDialog open{FullModel(5, 30), 0,
                  [](RecordingChannel& projector) { projector.Refuse("Get 0x2004"); }};
  FindLine& line = *open.Dialog().findChild<FindLine*>();
  QTabBar& tabs = *open.Dialog().findChild<QTabBar*>();

  void Type(const char* text) {
    QTest::keyClick(&open.Dialog(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&line, QString::fromUtf8(text));
  }
  QStringList Completions() const {
    QStringList texts;
    const QAbstractItemModel& model = *line.completer()->completionModel();
    for (int i = 0; i < model.rowCount(); ++i) texts << model.index(i, 0).data().toString();
    return texts;
  }
};

TEST(FindLine, GoesToTheRowOfAnyTab) {
  Finding find;
  find.Type("BRIGHT");
  EXPECT_TRUE(find.line.isVisible());
  EXPECT_EQ(find.Completions(), (QStringList{QStringLiteral("Brightness — Picture"),
                                             QStringLiteral("OSD Bright — Screen")}));
  QTest::keyClick(&find.line, Qt::Key_Return);
  EXPECT_FALSE(find.line.isVisible());
  EXPECT_EQ(find.tabs.currentIndex(), 1);
  EXPECT_EQ(QApplication::focusWidget(), find.open.Page().GetDlgItem(20136));

  find.Type("bright");
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) {
    QTest::keyClick(find.line.completer()->popup(), key);
  }
  EXPECT_EQ(find.tabs.tabText(find.tabs.currentIndex()), QStringLiteral("Screen"));
  EXPECT_EQ(QApplication::focusWidget()->accessibleName(), QStringLiteral("OSD Bright"));
}

TEST(FindLine, StaysForNoNameAndLeavesWithoutTheDialog) {
  Finding find;
  find.Type("no such row");
  QTest::keyClick(&find.line, Qt::Key_Return);
  EXPECT_TRUE(find.line.isVisible());
  QTest::keyClick(&find.line, Qt::Key_Escape);
  EXPECT_FALSE(find.line.isVisible());
  EXPECT_TRUE(find.open.Dialog().isVisible());
  find.Type("contrast");  // grey: its tab is shown, and keeps the focus
  QTest::keyClick(&find.line, Qt::Key_Return);
  EXPECT_EQ(find.tabs.currentIndex(), 1);
  EXPECT_EQ(QApplication::focusWidget(), &find.tabs);
}

}  // namespace
