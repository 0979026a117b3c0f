#include <QApplication>
#include <QBitmap>
#include <QDebug>
#include <QHelpEvent>
#include <QLabel>
#include <QTabBar>
#include <QTest>
#include <QToolTip>

#include "host/ProjectorStrip.h"
#include "resources/AdvancedControlResources.h"
#include "tests/support/Blocks.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/Record.h"
#include "tests/support/Soon.h"
#include "toolkit/CTabCtrl.h"
#include "toolkit/ResourceModule.h"

namespace {

// Order, captions and pages of each model's tabs are in pages/listing/Tabs.txt.
TEST(Tabs, EachShowsItsPageAlone) {
  for (const auto& [dialogType, count] : {std::pair{0, 1}, {6, 1}, {-1, 1}, {1, 9}, {5, 9}}) {
    OpenDialog open(MakeModel(dialogType, dialogType == 5 ? 30 : 1));
    auto& tabs = *open.Dialog().findChild<QTabBar*>();
    ASSERT_EQ(tabs.count(), count) << "type " << dialogType;
    for (int tab = 0; tab < count; ++tab) {
      open.SelectTab(tab);
      tabs.clearFocus();
      EXPECT_FALSE(Wheel(tabs, 1) || Wheel(tabs, -1) || tabs.currentIndex() != tab) << tab;
      const auto pages = open.Dialog().findChildren<CTabPage*>();
      EXPECT_EQ(std::ranges::count_if(pages, &QWidget::isVisible), 1);
      EXPECT_TRUE(open.Page().isVisible());
    }
    EXPECT_EQ(tabs.tabRect(0).width(), 120);
    tabs.setFocus();
    Wheel(tabs, 1);
    EXPECT_EQ(tabs.currentIndex(), std::max(count - 2, 0));
  }
}

TEST(Tabs, ADialogThatWasNotCreatedHasNoneAndWorks) {
  CAdvanceDlg dialog;
  SourceList sources;
  AddSource(sources, 3, "HDMI");
  dialog.ReplaceSources(sources);
  EXPECT_EQ(dialog.Model().MySourceList, sources);
  Activate(dialog);
  dialog.DispTabScreen();
  for (const QKeySequence& keys : {QKeySequence(QKeySequence::Find), QKeySequence(Qt::Key_F5),
                                   QKeySequence(Qt::CTRL | Qt::Key_PageDown)}) {
    QTest::keySequence(&dialog, keys);
  }
  EXPECT_FALSE(dialog.grab().isNull());
  dialog.OnDestroy();
  EXPECT_EQ(dialog.ShownPage(), nullptr);
}

TEST(Tabs, PagesWithoutATabExist) {
  OpenDialog open(MakeModel(2, 5));
  CTabPage& hidden = open.Dialog().Page(PageId::Auto2);
  EXPECT_NE(hidden.Template(), nullptr);
  EXPECT_EQ(open.Dialog().Page(PageId::Main).Template(), nullptr) << "of another page set";
}

TEST(Tabs, AreAllInSightOnANarrowScreen) {
  CTabCtrl tabs;
  for (const char* text : {"Automatische Einstellungen", "Bild", "Ton"}) tabs.addTab(text);
  tabs.show();
  tabs.resize(tabs.fontMetrics().horizontalAdvance("Bild, Automatische, Ton") + 80, 30);
  for (const int tab : {2, 1, 0}) {
    const QPoint at = tabs.tabRect(tab).center();
    QHelpEvent help(QEvent::ToolTip, at, tabs.mapToGlobal(at));
    QApplication::sendEvent(&tabs, &help);
    EXPECT_EQ(QToolTip::text(), tab == 0 ? tabs.tabText(0) : QString());
  }
  QToolTip::hideText();
}

TEST(Tabs, TheFrameAndWhatIsAroundItStandAsRecorded) {
  QString now;
  QDebug record = QDebug(&now).nospace();
  const QFont before = QApplication::font();
  for (const auto& [type, code, size] :
       {std::tuple{1, 1, 10}, {5, 30, 10}, {5, 30, 30}, {0, 1, 10}}) {
    QApplication::setFont(Blocks(size));
    OpenDialog open(FullModel(type, code));
    CAdvanceDlg& dialog = open.Dialog();
    record << "Type " << type << " with " << size << ": " << dialog.sizeHint() << ", not below "
           << dialog.minimumSize() << '\n';
    if (type == 0) dialog.resize(dialog.size() + QSize(331, 17));
    QTest::keyClick(&dialog, Qt::Key_F, Qt::ControlModifier);
    const QWidget* const parents[] = {&dialog, dialog.findChild<ProjectorStrip*>()};
    for (const QWidget* parent : parents)
      for (const auto* part : parent->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        record << "  " << part->metaObject()->className() << ' ' << part->geometry() << '\n';
    dialog.setPalette(QPalette(Qt::darkGreen));
    auto& tabs = *dialog.findChild<CTabCtrl*>();
    const int top = tabs.geometry().bottom();
    const QImage drawn =
        dialog.grab({0, top, dialog.width(), dialog.GetDlgItem(1)->y() - top}).toImage();
    const QImage frame = drawn.createMaskFromColor(drawn.pixel(15, 99), Qt::MaskOutColor);
    record << "  Frame " << QRegion(QBitmap::fromImage(frame)).boundingRect() << '\n';
    tabs.setTabText(0, QString(30, u'a'));
    tabs.resize((size + 50 / code) * tabs.count(), 50);
    for (int i = 0; i < tabs.count(); ++i) record << "  Tab " << tabs.tabRect(i) << '\n';
  }
  QApplication::setFont(before);
  ExpectRecord(TEST_SOURCE_DIR "/host/Around.txt", now.toStdString());
}

TEST(Tabs, TitleAndConnectionAreThoseOfTheModel) {
  CModelInfo2 record = MakeModel(5, 30);
  record.ModelName = "Hall %1";
  record.ConnectionKinds[0] = 1;
  record.ConnectionNumbers[0] = 3;
  record.ConnectionTexts1[0] = MakeNameSlot("10.0.0.7");
  AddEntry(record.GammaList, 17, "g");
  AddEntry(record.AspectList, 5, "a");
  CAdvanceDlg network;
  network.CopyData(&record, 0);
  network.SetHostOption(true);
  network.Projector().SetChannel(std::make_shared<RecordingChannel>());
  ASSERT_TRUE(network.Create());
  EXPECT_EQ(network.windowTitle(), CatalogString(4, 155, "Hall %1", "10.0.0.7"));
  EXPECT_EQ(DialogDriver(network).Text(1), "&Close");
  EXPECT_TRUE(network.Projector().HostOption == 1 && network.Projector().DialogType == 5);
  EXPECT_EQ(network.Projector().GammaValues(), std::vector{17});
  EXPECT_EQ(network.Projector().AspectValues(), std::vector{5});
  record.ConnectionKinds[0] = 0;
  for (const auto& [text, shown] : {std::pair("10.0.0.7", "COM4"), {"/dev/ttyX", "/dev/ttyX"}}) {
    record.ConnectionTexts1[0] = MakeNameSlot(text);
    OpenDialog serial(record);
    EXPECT_TRUE(serial.Dialog().windowTitle().contains(QStringLiteral("4")));
    const QString strip =
        serial.Dialog().findChild<ProjectorStrip*>()->findChild<QLabel*>()->text();
    EXPECT_TRUE(strip.contains(shown)) << strip.toStdString();
  }
}

TEST(Tabs, TheHostsResourceModuleIsRestoredInAnyOrderOfClosing) {
  static constexpr ResourceModule host{std::span<const DialogTemplate* const>{}};
  const ResourceModule* before = ResourceChain::SetCurrent(&host);
  for (const bool firstFirst : {true, false}) {
    OpenDialog first(MakeModel(1, 1));
    OpenDialog second(MakeModel(1, 1));
    (firstFirst ? first : second).Dialog().reject();
    EXPECT_EQ(ResourceChain::Current(), &AdvancedControlResources()) << "one is still open";
    (firstFirst ? second : first).Dialog().reject();
    EXPECT_EQ(ResourceChain::Current(), &host);
  }
  { const OpenDialog open(MakeModel(1, 1)); }
  EXPECT_EQ(ResourceChain::SetCurrent(before), &host) << "after destruction without closing";
}

TEST(Keyboard, CyclesThroughTheTabsAndClosesTheDialogButNeverHidesItsPage) {
  OpenDialog open(MakeModel(5, 30));
  CAdvanceDlg& dialog = open.Dialog();
  const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  };
  const auto& tabs = *dialog.findChild<QTabBar*>();
  for (int tab = 1; tab <= tabs.count(); ++tab) {
    dialog.GetDlgItem(1)->setFocus();
    press(tab % 2 == 0 ? Qt::Key_PageDown : Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(tabs.hasFocus() && tabs.currentIndex() == tab % tabs.count()) << tab;
  }
  press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(tabs.currentIndex(), tabs.count() - 1);
  press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(tabs.currentIndex(), tabs.count() - 2);
  const QRect close = dialog.GetDlgItem(1)->geometry();
  QTest::mouseClick(dialog.GetDlgItem(1), Qt::LeftButton);
  for (const auto& [key, modifiers, onPage] : {std::tuple{Qt::Key_Return, Qt::NoModifier, false},
                                               {Qt::Key_C, Qt::AltModifier, true},
                                               {Qt::Key_Escape, Qt::NoModifier, true}}) {
    SCOPED_TRACE(key);
    ASSERT_TRUE(dialog.Create());
    EXPECT_EQ(dialog.GetDlgItem(1)->geometry(), close);
    Activate(dialog);
    open.SelectTab(1);
    (onPage ? open.Page().GetDlgItem(20142) : dialog.GetDlgItem(1))->setFocus();
    press(key, modifiers);
    EXPECT_TRUE(Soon([&dialog] { return !dialog.isVisible(); }));
    open.Page().reject();
    EXPECT_FALSE(open.Page().isHidden());
  }
}

}  // namespace
