// The main window with many projectors: work on all of them, alerts, and tables.

#include <optional>

#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "app/desktop/alerts/AlertList.h"
#include "app/desktop/details/DetailsPanel.h"
#include "app/desktop/groups/GroupList.h"
#include "app/desktop/profiles/ConnectionTest.h"
#include "app/desktop/profiles/SearchDialog.h"
#include "app/desktop/profiles/TransferActions.h"
#include "host/CAdvanceDlg.h"
#include "tests/app/Work.h"
#include "tests/fleet/Served.h"
#include "tests/support/Programs.h"

namespace {

using namespace std::chrono_literals;

const FleetPolicy kOften{.interval = 200ms, .longestPause = 200ms, .soonest = 200ms};

std::ptrdiff_t CountIn(const MainWindow& window, ProjectorGroup::Kind kind) {
  return std::ranges::count_if(
      Rows(window), [kind](const ProjectorRow& row) { return ProjectorGroup{kind}.Has(row); });
}

std::ptrdiff_t Failed(const WorkDialog& dialog) {
  return std::ranges::count_if(dialog.Run().Lines(), &WorkLine::HasFailed);
}

TEST(FleetWindow, FindsOneOfFiveHundredAndItsAlertAndSwitchesAllOff) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("fleet.json");
  const SimulatorProcess simulator({"--fleet", "500", "--port", "0", "--fault", "silent 5%",
                                    "--warm-up", "0", "--cool-down", "0", "--control", "0",
                                    "--write-profiles", file});
  ProfileDocument document;
  ASSERT_EQ(document.Load(file), "");
  MainWindow window(document, nullptr, {.longestPause = 1s, .soonest = 200ms});
  window.show();
  ASSERT_TRUE(AreWatched(window));
  const auto silent = CountIn(window, ProjectorGroup::Kind::Unreachable);
  const auto off = CountIn(window, ProjectorGroup::Kind::Off);
  EXPECT_EQ(silent, 25);
  auto* groups = window.findChild<GroupList*>();
  EXPECT_TRUE(Soon([&] { return groups->item(2)->text() == QStringLiteral("Off (%1)").arg(off); }));

  const auto one = static_cast<std::size_t>(
      std::ranges::find(Rows(window), Health::Good, HealthOf) - Rows(window).begin());
  auto* search = window.findChild<ProjectorView*>()->findChild<QLineEdit*>();
  QTest::keyClicks(search, QString::fromStdString(Rows(window)[one].profile.name));
  EXPECT_EQ(window.findChild<ProjectorView*>()->CurrentPosition(), static_cast<int>(one));
  const auto hasAlertNow = [&](const char* errors) {
    const QByteArray number = QByteArray::number(qulonglong{one + 1});
    EXPECT_EQ(simulator.Control(number + " errors " + errors), "ok");
    Find<QAction>(window, "Refresh").trigger();
    const bool before = Rows(window)[one].hasAlert;
    EXPECT_TRUE(Soon([&] { return Rows(window)[one].hasAlert != before; }));
    return Rows(window)[one].hasAlert;
  };
  EXPECT_TRUE(hasAlertNow("002000"));
  EXPECT_FALSE(hasAlertNow("000000"));
  search->clear();

  Table(window).selectAll();
  Find<QAction>(window, "Switch Off").trigger();
  WorkDialog* dialog = window.findChild<WorkDialog*>();
  Find<QLabel>(*dialog, "Switch off 500 projectors?");
  EXPECT_EQ(dialog->findChild<QTreeWidget*>()->topLevelItemCount(), 500);
  Find<QPushButton>(*dialog, "Switch Off").click();
  EXPECT_EQ(Failed(Done(window)), silent);
  Find<QLabel>(*dialog, "475 of 500 done · 25 failed");
  EXPECT_TRUE(Soon([&] { return CountIn(window, ProjectorGroup::Kind::Off) == 475; }));
}

TEST(FleetWindow, WatchesEverySimulatedProjectorAtAnAddressOfItsOwn) {
  std::vector<FleetProfile> profiles;
  profiles.reserve(250);
  for (int i = 0; i < 250; ++i) {
    profiles.push_back(Profile(std::to_string(i).c_str()));
    if (i % 2 == 1) profiles.back().tags = {"odd"};
  }
  ShownWindow window(profiles, kOften);
  window.Session(249)->Simulator().SetValue(SettingId::ErrorStatus, 4);
  ASSERT_TRUE(AreWatched(window));
  EXPECT_TRUE(Soon([&] { return CountIn(window, ProjectorGroup::Kind::Problems) == 1; }));
  EXPECT_EQ(HealthOf(Rows(window)[249]), Health::Error);
  EXPECT_EQ(CountIn(window, ProjectorGroup::Kind::Unreachable), 0);
  auto& off = Find<QAction>(window, "Switch Off");
  for (const ProjectorGroup& group : {ProjectorGroup{ProjectorGroup::Kind::Tag, "odd"}, {}}) {
    Table(window).selectAll();
    window.findChild<GroupList*>()->Choose(group);
    const std::vector<int> selected = window.findChild<ProjectorView*>()->Selected();
    EXPECT_TRUE(selected.size() == 125 && selected.back() == 249) << "only what was and is shown";
  }
  window.findChild<GroupList*>()->Choose({ProjectorGroup::Kind::Off});
  EXPECT_FALSE(off.isEnabled()) << "nothing is selected any more";
  window.findChild<GroupList*>()->Choose({});
  Table(window).selectAll();
  off.trigger();
  Find<QPushButton>(*window.findChild<WorkDialog*>(), "Switch Off").click();
  EXPECT_EQ(Failed(Done(window)), 0);
}

TEST(FleetWindow, RaisesAnAlertUntilItsCauseIsGone) {
  ShownWindow window({Profile("A"), Profile("B")}, kOften);
  const auto& alerts = *window.findChild<AlertList*>();
  const auto raise = [&window](int error) {
    window.Session(1)->Simulator().SetValue(SettingId::ErrorStatus, error);
  };
  raise(4);
  ASSERT_TRUE(Soon([&] { return Rows(window)[1].hasAlert; }));
  EXPECT_EQ(
      alerts.Open(),
      (std::vector{Alert{Rows(window)[1].id, Alert::Kind::Problem, ProjectorPart::Temperature}}));
  auto& list = *alerts.findChild<QTreeWidget*>();
  EXPECT_EQ(list.topLevelItem(0)->text(1), "B: Temperature");
  list.setCurrentItem(list.topLevelItem(0));
  window.Session(0)->Simulator().SetValue(SettingId::ErrorStatus, 4);
  ASSERT_TRUE(Soon([&] { return list.topLevelItemCount() == 2; }));
  EXPECT_EQ(list.currentIndex().row(), 1) << "the keyboard is still at the same one";
  Find<QPushButton>(alerts, "Acknowledge").click();
  EXPECT_FALSE(Rows(window)[1].hasAlert) << "it stayed selected while another came";
  EXPECT_TRUE(Rows(window)[0].hasAlert);
  window.Session(0)->Simulator().SetValue(SettingId::ErrorStatus, 0);
  raise(0);
  EXPECT_TRUE(Soon([&] { return list.topLevelItemCount() == 0; }));
  raise(4);
  EXPECT_TRUE(Soon([&] { return Rows(window)[1].hasAlert; })) << "it came again";
}

TEST(FleetWindow, ShowsWhatADialogHasRead) {
  ShownWindow window({Profile("A")}, {.interval = 1h});
  SimulatedProjector& projector = window.Session(0)->Simulator();
  ASSERT_TRUE(Soon([&] { return Rows(window)[0].state.answered.has_value(); }));
  projector.SetValue(SettingId::LampTime, 777);
  window.OpenDialog(0, 0);
  EXPECT_TRUE(Soon([&] {
    return Rows(window)[0].state.lamps == std::vector<LampState>{{.hours = 777, .isOn = true}};
  }));
}

TEST(FleetWindow, TheFirstReadingIsNoEventAndUnseenRowsStayUpToDate) {
  MainWindow window({Profile("A"), Profile("B")}, kOften);  // not shown: no row is in sight
  const auto& state = Rows(window)[1].state;
  ASSERT_TRUE(Soon([&] { return Rows(window)[0].state.power && state.answered; }));
  const WallTime first = *state.answered;
  EXPECT_TRUE(Soon([&] { return *state.answered > first; }));
  const auto& events = Find<QListWidget>(window, "Recent events");
  EXPECT_EQ(events.item(0)->text(), "nothing yet");
  window.Session(0)->Simulator().SetValue(SettingId::ErrorStatus, 4);
  EXPECT_TRUE(Soon([&] { return events.item(0)->text().endsWith("Temperature: OK → Error"); }));
}

TEST(FleetWindow, EventsAreThoseOfTheProjectorAndNoOtherNumberOfItsSource) {
  using enum StateField;
  DetailsPanel panel({});
  const auto& events = Find<QListWidget>(panel, "Recent events");
  const ProjectorRow row{.id = "a", .profile = Profile("A")};
  const StateChange off{.field = Power, .before = {1}, .now = {0}};
  const StateChange same{.field = Source, .before = {3, "HDMI"}, .now = {31, "HDMI (31)"}};
  for (const auto& [field, name] : {std::pair(Mute, "Mute"), {Blank, "Blank"}}) {
    panel.Show(&row, 1, {{.field = field, .before = {0}, .now = {1}}, same, off});
    EXPECT_TRUE(events.item(1)->text().contains(name));
  }
}

TEST(FleetWindow, SearchFindsAProjectorAndMarksTheKnown) {
  // An address of this process's own: the port is that of the protocol.
  const auto own = static_cast<unsigned>(QCoreApplication::applicationPid());
  const std::string address =
      "127.77." + std::to_string(own >> 8 & 0xFF) + '.' + std::to_string(own % 253 + 1);
  PjLinkServer server(std::make_shared<SimulatedProjector>(DescribeModel(SimulatedModelData())),
                      {.served = {.texts = {{"NAME", "Hall"}, {"INF2", "QD-M7450"}}}});
  ASSERT_TRUE(server.Listen(address, 4352));
  FleetProfile known = Profile("Hall");
  known.link = ProjectorLink::PjLink;
  known.connection = {.isNetwork = true, .address = address, .port = 4352};
  for (const bool isKnown : {false, true}) {
    const std::vector<FleetProfile> all(isKnown ? 1 : 0, known);
    SearchDialog dialog(all, nullptr);
    dialog.open();
    auto* addresses = dialog.findChild<QLineEdit*>();
    QTest::keyClicks(addresses, "nowhere");
    QTest::keyClick(addresses, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    Find<QLabel>(dialog, "\"nowhere\" is neither an IP address nor a range of them");
    addresses->clear();
    QTest::keyClicks(addresses, QString::fromStdString(address));
    Find<QPushButton>(dialog, "Search").click();
    const auto& list = *dialog.findChild<QTreeWidget*>();
    ASSERT_TRUE(Soon([&] { return list.topLevelItemCount() == 1; }));
    EXPECT_EQ(list.topLevelItem(0)->text(0), "Hall");
    EXPECT_EQ(list.topLevelItem(0)->text(1), "QD-M7450");
    EXPECT_EQ(list.topLevelItem(0)->text(3), isKnown ? "known already" : "");
    EXPECT_EQ(dialog.Chosen().size(), isKnown ? 0U : 1U);
    EXPECT_EQ(Find<QPushButton>(dialog, "Add the Checked").isEnabled(), !isKnown);
  }
}

TEST(FleetWindow, TestConnectionSaysWhatAnswers) {
  Served served;
  ProjectorAddress address = AddressError{"none"};
  ConnectionTest test([&] { return address; });
  auto& result = Find<QLabel>(test, "Result of the test");
  const auto said = [&](const ProjectorAddress& asked) {
    address = asked;
    Find<QPushButton>(test, "Test Connection").click();
    EXPECT_TRUE(Soon([&] { return result.text() != "Asking…"; }));
    return result.text().section(" · ", 0, 1);
  };
  EXPECT_EQ(said(AddressError{"none"}), "There is nothing to connect to.");
  EXPECT_EQ(said(served.Wire()), "A projector answers: OK · On");
  EXPECT_TRUE(said(served.PjLink("secret")).startsWith("A projector answers: Simulated"));
  EXPECT_EQ(said(served.PjLink("other")), "Wrong password");
  EXPECT_EQ(said(TcpAddress{.host = "127.0.0.1", .port = 1}), "No answer");
}

TEST(FleetWindow, ADialogsConnectionIsLeftToAJobAndMadeAgain) {
  Served served;
  served.device->Execute({PjtOperation::SetPowerOn});
  ShownWindow window({Profile("A", ProjectorLink::Network, served.wirePort)}, {.interval = 1h});
  window.OpenDialog(0, 0);
  ProjectorChannel& channel = *window.Session(0)->Channel();
  const auto connection = [&channel] { return channel.Connection(); };
  ASSERT_TRUE(Soon([&] { return connection() == ConnectionState::Connected; }));
  Table(window).selectAll();
  Find<QAction>(window, "Switch Off").trigger();
  EXPECT_TRUE(Soon([&] { return Rows(window)[0].state.power == PowerState::Standby; }));
  EXPECT_EQ(connection(), ConnectionState::Unused);
  EXPECT_TRUE(channel.Execute({PjtOperation::GetMirror}).answered);
  EXPECT_EQ(connection(), ConnectionState::Connected);
}

TEST(FleetWindow, AlertsFollowTheRules) {
  const SessionTime now = std::chrono::steady_clock::now();
  ProjectorRow row{.id = "x", .profile = Profile("X")};
  row.profile.ratedLampHours = 2000;
  row.state = {.reachability = Reachability::Answers, .lamps = {{.hours = 1799}}};
  using Kinds = std::vector<std::pair<Alert::Kind, ProjectorPart>>;
  const auto found = [&](const AlertRules& rules = {}) {
    Kinds kinds;
    for (const Alert& one : FindAlerts(rules, {row}, now)) kinds.emplace_back(one.kind, one.part);
    return kinds;
  };
  using enum Alert::Kind;
  EXPECT_EQ(found(), Kinds());
  row.state.lamps[0].hours = 1800;
  EXPECT_EQ(found(), (Kinds{{Lamp, ProjectorPart::Other}}));
  EXPECT_EQ(found({.lampPercent = 0}), Kinds());
  row.state.drift = 3;
  EXPECT_EQ(found({.lampPercent = 91}), (Kinds{{Drift, ProjectorPart::Other}}));
  EXPECT_EQ(found({.lampPercent = 91, .drift = false}), Kinds());
  row.state = {.reachability = Reachability::Answers, .problems = PartProblems{}};
  for (std::size_t part = 0; part < row.state.problems->size(); ++part) {
    row.state.problems = PartProblems{};
    (*row.state.problems)[part] = ProblemGrade::Warning;
    EXPECT_EQ(found(), (Kinds{{Problem, static_cast<ProjectorPart>(part)}}));
    EXPECT_EQ(found({.problems = false}), Kinds());
  }
  row.state = {.reachability = Reachability::Silent, .steadySince = now - 5min + 1s};
  EXPECT_EQ(found(), Kinds()) << "the computer slept; by its date this is long ago";
  row.state.steadySince = now - 5min;
  EXPECT_EQ(found(), (Kinds{{Silent, ProjectorPart::Other}}));
  EXPECT_EQ(found({.silent = 0min}), Kinds());
  const AlertRules quiet{.quietFrom = QTime(22, 0), .quietTo = QTime(6, 0)};
  EXPECT_TRUE(quiet.IsQuiet(QTime(23, 0)) && quiet.IsQuiet(QTime(5, 59)));
  EXPECT_FALSE(quiet.IsQuiet(QTime(6, 0)) || quiet.IsQuiet(QTime(12, 0)));
  EXPECT_FALSE(AlertRules().IsQuiet(QTime(0, 0)));
}

TEST(FleetWindow, AnAlertStaysAcknowledgedInTheNextRunUntilItsCauseIsGone) {
  const SessionTime now = std::chrono::steady_clock::now();
  ProjectorRow worn{.id = "a b", .profile = Profile("Worn")};
  worn.profile.ratedLampHours = 2000;
  ProjectorRow changed{.id = "c", .profile = Profile("Changed")};
  QStringList said;
  const auto look = [&](AlertList& list, int hours, std::optional<int> drift) {
    worn.state.lamps = {{.hours = hours}};
    changed.state.drift = drift;
    said.clear();
    list.Look({worn, changed}, now);
    return list.Open().size();
  };
  AlertList first;
  EXPECT_EQ(look(first, 1900, 2), 2U);
  Find<QPushButton>(first, "Acknowledge All").click();

  AlertList second;
  QObject::connect(&second, &AlertList::Raised, [&](const QStringList& texts) { said = texts; });
  second.RememberAcknowledged(first.Acknowledged() + QStringList{"what is this"});
  EXPECT_EQ(look(second, 1950, {}), 0U);
  EXPECT_EQ(said, QStringList());
  AlertList third;
  third.RememberAcknowledged(second.Acknowledged());
  for (int opened = 0; opened < 2; ++opened) {
    EXPECT_EQ(look(third, 1960, 3), 0U);
    third.Look({}, now);  // those of another file
  }
  EXPECT_EQ(look(second, 10, 0), 0U);
  EXPECT_EQ(look(second, 1950, 2), 2U) << "both have come back";
  EXPECT_EQ(said.size(), 2);
  AlertList last;
  const QSignalSpy told(&last, &AlertList::Changed);
  last.RememberAcknowledged(first.Acknowledged());
  look(last, 10, 0);
  EXPECT_EQ(told.size(), 1) << "for who keeps the acknowledged ones";
  auto& list = *second.findChild<QTreeWidget*>();
  list.setCurrentItem(list.topLevelItem(1));
  worn.profile.name = "Old";
  look(second, 1950, 0);
  EXPECT_EQ(list.currentIndex().row(), 0) << "where another was";
  EXPECT_EQ(list.topLevelItem(0)->text(1).section(':', 0, 0), "Old");
}

TEST(FleetWindow, TakesATableAndNamesItsTenWrongLines) {
  ShippedWindow window;
  const QString file = window.folder.filePath("t.csv");
  const auto before = Rows(window).size();
  QByteArray table("name,address,IP\n");
  for (int i = 0; i < 20; ++i)
    table += "Room " + QByteArray::number(i) + (i % 2 == 0 ? ",192.0.2.1,h\n" : ",192.0.2.1:x\n");
  Write(file, table);
  window.findChild<TransferActions*>()->ImportFile(file);
  auto& said = Modal<QMessageBox>();
  EXPECT_EQ(said.text(), "10 projectors added · 0 already known · 10 rows not taken");
  EXPECT_EQ(said.informativeText().count("Line "), 10);
  EXPECT_TRUE(said.informativeText().startsWith("Line 3: "));
  EXPECT_TRUE(said.informativeText().endsWith("\nColumns not used: IP"));
  said.close();
  EXPECT_EQ(Rows(window).size(), before + 10);
  Find<QAction>(window, "Undo Import Table").trigger();
  EXPECT_EQ(Rows(window).size(), before);
}

}  // namespace
