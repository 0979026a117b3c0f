// Which projector the dialog belongs to, when its page was read, and which settings differ from
// those that the projector should have.

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include "host/ProjectorStrip.h"
#include "pages/rows/RowMarks.h"
#include "snapshots/Snapshot.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/Soon.h"
#include "toolkit/FittedScroll.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kPictureTab = 1, kOptionTab = 7, kOtherTab = 8;
constexpr int kBrightness = 20136, kIris = 20293, kContrast = 20138;
constexpr int kExecuteReset = 20018, kPowerState = 20008, kVolumeField = 20133;

std::string StripText(CAdvanceDlg& dialog) {
  return dialog.findChild<ProjectorStrip*>()->findChild<QLabel*>()->accessibleName().toStdString();
}

struct SilentChannel final : ProjectorChannel {
  PjtReply Execute(const PjtCommand& command) override {
    return {.result = RefusedResult(command.operation), .answered = false};
  }
};

TEST(Projector, IsNamedOverTheTabsAndInBoxes) {
  CModelInfo2 record = FullModel(5, 30);
  record.ModelName = "QD-1";
  record.ConnectionKinds[0] = 1;
  record.ConnectionTexts1[0] = MakeNameSlot("10.0.0.7");
  CAdvanceDlg dialog;
  dialog.SetProjectorName("Lecture hall 2");
  Open(dialog, record, std::make_shared<RecordingChannel>());
  EXPECT_EQ(StripText(dialog), "Lecture hall 2 — QD-1 — 10.0.0.7 — answers");
  dialog.findChild<QTabBar*>()->setCurrentIndex(kOtherTab);
  QString title, text;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    title = box->windowTitle();
    text = box->text();
    box->reject();
  });
  DialogDriver(*dialog.ShownPage()).Click(20101);
  EXPECT_TRUE(text == "Turn Lecture hall 2 off?" && title.startsWith("Lecture hall 2 — "));
  dialog.Projector().SetChannel(std::make_shared<SilentChannel>());
  dialog.DispTabScreen();
  { const CDialog::Busy nothingIsSent(&dialog); }
  EXPECT_TRUE(StripText(dialog).ends_with("does not answer")) << StripText(dialog);
  dialog.Projector().SetChannel(std::make_shared<RecordingChannel>());
  dialog.DispTabScreen();
  EXPECT_TRUE(StripText(dialog).ends_with("— answers")) << StripText(dialog);
}

TEST(Projector, ItsLineIsCutOffWhereTheAgeOfTheReadingBegins) {
  ProjectorStrip::Age age;
  ProjectorStrip strip(nullptr, [&age] { return age; });
  strip.SetProjector({QStringLiteral("Lecture hall 2"), QStringLiteral("10.0.0.7")});
  const auto& label = *strip.findChild<QLabel*>();
  const int whole = label.fontMetrics().horizontalAdvance(label.text());
  strip.resize(whole + 60, strip.sizeHint().height());
  QElapsedTimer clock;
  clock.start();
  strip.show();
  EXPECT_TRUE(label.toolTip().isEmpty());
  age = std::chrono::minutes(5);
  EXPECT_TRUE(Soon([&] { return !label.toolTip().isEmpty(); }));
  EXPECT_GT(clock.elapsed(), 500) << "it is looked at every second";
  EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), label.width());
  EXPECT_TRUE(label.text().contains(QChar(0x2026))) << label.text().toStdString();
  EXPECT_TRUE(label.toolTip().startsWith(QChar(0x2068))) << label.toolTip().toStdString();
  const std::pair<int, const char*> ages[] = {
      {1, "just now"}, {2, "2 s ago"}, {59, "59 s ago"}, {60, "1 min ago"}, {179, "2 min ago"}};
  for (const auto& [seconds, text] : ages) {
    age = std::chrono::seconds(seconds);
    strip.ShowAge();
    EXPECT_EQ(strip.findChildren<QLabel*>().last()->text(), QStringLiteral("Read ") + text);
  }
  strip.SetAnswers(true);
  strip.SetProjector({QStringLiteral("QD-1"), QString(), QStringLiteral("QD-1")});
  EXPECT_EQ(label.accessibleName(), QStringLiteral("QD-1")) << "another one has not answered yet";
}

TEST(ReadAgain, F5ReadsThePageUnlessAHandlerRuns) {
  OpenDialog open(FullModel(5, 30), kPictureTab);
  open.Dialog().DispTabScreen();
  const auto reads = open.Projector().Take();
  auto& again = *open.Dialog().findChild<ProjectorStrip*>()->findChild<QToolButton*>();
  for (const auto& [busy, byMouse] :
       {std::pair{true, false}, {true, true}, {false, false}, {false, true}}) {
    const CDialog::Busy handler(busy ? &open.Dialog() : nullptr);
    open.Page().GetDlgItem(kBrightness)->setFocus();
    byMouse ? QTest::mouseClick(&again, Qt::LeftButton)
            : QTest::keyClick(&open.Dialog(), Qt::Key_F5);
    EXPECT_EQ(open.Projector().Take(), busy ? std::vector<std::string>() : reads);
    EXPECT_TRUE(open.Page().GetDlgItem(kBrightness)->hasFocus());
  }
  EXPECT_TRUE(again.accessibleName() == "Read again (F5)" && again.toolTip() == "Read again (F5)");
}

TEST(ReadAgain, TheStatusPageIsKeptUpToDateOnlyWhenAskedAndQuiet) {
  OpenDialog open(FullModel(5, 30));
  open.Page().InitDisp();
  const auto reads = open.Projector().Take();
  auto& timer = *open.Page().findChild<QTimer*>();
  EXPECT_FALSE(timer.isActive());
  Menu(open.Page(), kExecuteReset, "Keep up to date");
  ASSERT_TRUE(timer.isActive());
  {
    const CDialog::Busy handler(&open.Dialog());
    timer.start(1);
    QTest::qWait(30);
    EXPECT_THAT(open.Projector().Take(), IsEmpty());
  }
  std::vector<std::string> sent;
  EXPECT_TRUE(Soon([&] { return !(sent = open.Projector().Take()).empty(); }));
  EXPECT_EQ(sent, reads);
  EXPECT_GT(timer.interval(), 1000) << "the next pause is whole";
  open.Driver().Click(kExecuteReset);
  for (int i = 0; i < 2; ++i) {
    open.Projector().Take();
    timer.start(1);
    EXPECT_TRUE(Soon([&] { return !open.Projector().Take().empty(); }));
    EXPECT_EQ(Said(open.Dialog()), "Lamp Time reset") << "does not vanish by itself";
  }
  open.Dialog().DispTabScreen();
  EXPECT_EQ(Said(open.Dialog()), "") << "the user has read the page again";
  Menu(open.Page(), kPowerState, "Keep up to date");
  EXPECT_FALSE(timer.isActive());
}

struct WantedTest : testing::Test {
  WantedTest() {
    wanted.settings = {{.key = "picture.brightness", .value = 140, .text = {}},
                       {.key = "picture.active-iris", .value = 16, .text = {}},
                       {.key = "picture.contrast", .value = 128, .text = {}}};
    open.Dialog().SetWanted(wanted);
  }
  std::vector<int> Differing() {
    std::vector<int> controls;
    for (const auto& mark : open.Dialog().findChild<RowMarks*>()->Shown())
      controls.push_back(mark.control);
    return controls;
  }
  QString Tab(int tab) { return open.Dialog().findChild<QTabBar*>()->tabText(tab); }
  QString Tip(int tab) { return open.Dialog().findChild<QTabBar*>()->tabToolTip(tab); }

  OpenDialog open{FullModel(5, 30), kPictureTab,
                  Answers({{"Get 0x2003", 128}, {"Get 0x2004", 128}})};
  Snapshot wanted;
};

TEST_F(WantedTest, MarksWhatDiffersAndSetsIt) {
  EXPECT_THAT(Differing(), ElementsAre(kBrightness, kIris));
  EXPECT_EQ(Tab(kPictureTab), QStringLiteral("Picture (2)"));
  QWidget& brightness = *open.Page().GetDlgItem(kBrightness);
  EXPECT_TRUE(brightness.toolTip().startsWith(QStringLiteral("Wanted: 12")));
  const MessageBoxes boxes;
  for (const auto& [control, choice, sent] :
       {std::tuple{kBrightness, "Set to wanted: 12", "SetBrightness 140"},
        {kIris, "Set to wanted: Theater", "Set 0x3304 16"}}) {
    for (const bool refused : {true, true, false}) {
      refused ? open.Projector().Refuse(sent) : open.Projector().Accept(sent);
      Menu(open.Page(), control, choice, true);
      EXPECT_THAT(open.Projector().Take(), IsEmpty());
      Menu(open.Page(), control, choice);
      EXPECT_THAT(open.Projector().Take(), ElementsAre(sent));
    }
    EXPECT_EQ(Tab(kPictureTab), control == kIris ? "Picture" : "Picture (1)");
  }
  open.Projector().Answer("Get 0x3304", 16);
  open.Projector().Answer("Get 0x2004", 130);
  open.Dialog().DispTabScreen();
  EXPECT_THAT(Differing(), ElementsAre(kBrightness, kContrast)) << "as just read";
  open.Projector().Refuse("Get 0x2004");
  open.Dialog().DispTabScreen();
  EXPECT_THAT(Differing(), ElementsAre(kBrightness)) << "the other is not known";
  WantedSettings first;  // of the positions
  first.Add("picture.active-iris", {}, 0);
  first.Add("service.ir-front", {}, 2);
  open.Dialog().SetWanted(first);
  EXPECT_THAT(Differing(), ElementsAre(kIris));
  const auto service = MakePopUp(PopUp::Service, open.Dialog());
  Open(*service);
  for (const char* const command : {"SetIRFront", "GetIRRemoteFront"})
    open.Projector().Refuse(command);
  for (int i = 0; i < 2; ++i) {
    open.Projector().Take();
    Menu(*service, 20375, "Set to wanted: On");
    EXPECT_THAT(open.Projector().Take(), ElementsAre("SetIRFront 1", "GetIRRemoteFront"));
  }
  open.Dialog().SetWanted(WantedSettings());
  EXPECT_THAT(Differing(), IsEmpty());
  EXPECT_EQ(Tab(kPictureTab), QStringLiteral("Picture"));
  EXPECT_FALSE(brightness.toolTip().contains(QStringLiteral("Wanted")));
}

TEST_F(WantedTest, BothMarksOfARowLieBetweenItAndTheFrame) {
  open.Projector().Refuse("SetBrightness");
  open.Driver().Drag(kBrightness, 6);
  QRect row = open.Page().RowRect(kBrightness);
  row.moveTopLeft(
      open.Page().GetDlgItem(kBrightness)->parentWidget()->mapTo(&open.Dialog(), row.topLeft()));
  EXPECT_GT(row.left() - 6, open.Dialog().findChild<QTabBar*>()->x());
  EXPECT_EQ(qobject_cast<RowMarks*>(open.Dialog().childAt(row.left() - 5, row.center().y())),
            nullptr)
      << "the mouse does not meet it";
  const QImage drawn = open.Dialog().grab().toImage();
  const QRgb bar = open.Dialog().palette().color(QPalette::Highlight).rgb();
  int signs = 0;
  for (int x = row.left() - 10; x < row.left() + 4; ++x) {
    for (int y = row.top(); y <= row.bottom(); ++y) {
      const bool isBar =
          x >= row.left() - 6 && x < row.left() - 3 && y > row.top() + 1 && y < row.bottom() - 1;
      EXPECT_EQ(drawn.pixel(x, y) == bar, isBar) << x - row.left() << ' ' << y - row.top();
      signs += drawn.pixelColor(x, y).red() > drawn.pixelColor(x, y).green() + 60;
    }
  }
  EXPECT_GT(signs, 5) << "an exclamation mark";
  open.Dialog().resize(open.Dialog().size() + QSize(40, 20));
  EXPECT_EQ(open.Dialog().findChild<RowMarks*>()->geometry(),
            open.Dialog().findChild<FittedScroll*>()->geometry().adjusted(-10, 0, 10, 0));
}

TEST(WantedOfAnInputSource, AsksForTheSourceOnlyIfTheValueIsWanted) {
  OpenDialog open(FullModel(1, 1), kOptionTab, Answers({{"GetInputSource", 3}}));
  const auto reads = [&open] {
    open.Projector().Take();
    open.Dialog().DispTabScreen();
    return open.Projector().Take();
  };
  auto expected = reads();
  const int shown = std::stoi(open.Driver().Text(kVolumeField).toStdString());
  WantedSettings wanted;
  wanted.Add("picture1.gamma", {}, 1);
  open.Dialog().SetWanted(wanted);
  EXPECT_EQ(reads(), expected);
  wanted.Add("option.volume", 3, shown + 1);
  wanted.Add("option.volume", 4, shown);
  open.Dialog().SetWanted(wanted);
  expected.emplace_back("GetInputSource");
  QTest::qWait(0);
  ASSERT_EQ(open.Projector().Take(), expected) << "by itself, and once";
  const auto marks = [&open] { return open.Dialog().findChild<RowMarks*>()->Shown().size(); };
  EXPECT_EQ(marks(), 1U);
  open.Projector().Answer("GetInputSource", 4);
  EXPECT_EQ(reads(), expected);
  EXPECT_EQ(marks(), 0U);
  wanted.Add("option.volume", 4, shown + 1);
  open.Dialog().SetWanted(wanted);
  EXPECT_EQ(marks(), 1U) << "at once, because the source is known";
  open.Dialog().SetWanted(WantedSettings());
  EXPECT_LT(reads().size(), expected.size());
  {
    const CDialog::Busy handler(&open.Dialog());
    open.Dialog().SetWanted(wanted);
    QTest::qWait(0);
    EXPECT_THAT(open.Projector().Take(), IsEmpty());
  }
  QTest::qWait(0);
  EXPECT_EQ(open.Projector().Take(), expected);
}

TEST_F(WantedTest, CountsPagesThatWereNotReadAsTheHostLastSawThem) {
  wanted.settings.push_back({.key = "option.auto-off", .value = 5, .text = {}});
  open.Dialog().SetWanted(wanted);
  EXPECT_EQ(Tab(kOptionTab), QStringLiteral("Option")) << "nothing is known";
  Snapshot seen = wanted;
  for (SavedSetting& setting : seen.settings) setting.value = 1;
  seen.settings.push_back({.key = "option.auto-off", .value = 5, .text = {}, .source = 3});
  open.Dialog().SetLastSeen(seen);
  EXPECT_EQ(Tab(kOptionTab), QStringLiteral("Option (1?)"));
  EXPECT_EQ(Tip(kOptionTab), QStringLiteral("Not as wanted when last seen: 1"));
  EXPECT_EQ(Tab(kPictureTab), QStringLiteral("Picture (2)")) << "this one was read";
  EXPECT_EQ(Tip(kPictureTab), QStringLiteral("Not as wanted: 2"));
  open.Dialog().SetLastSeen({});
  EXPECT_EQ(Tab(kOptionTab) + Tip(kOptionTab), QStringLiteral("Option"));
  EXPECT_THAT(open.Projector().Take(), IsEmpty());
  open.SelectTab(kOptionTab);
  EXPECT_EQ(Tab(kOptionTab), QStringLiteral("Option (1)"));
  EXPECT_FALSE(open.Dialog().findChild<RowMarks*>()->isVisible()) << "those of the other page";
}

}  // namespace
