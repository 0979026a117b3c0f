// A fleet and its projectors in a time of their own.

#include <algorithm>
#include <array>
#include <functional>
#include <tuple>

#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "fleet/StatusItems.h"
#include "settings/PageTables.h"
#include "tests/fleet/SteppedFleet.h"
#include "tests/support/Record.h"

namespace {

using namespace std::chrono_literals;
using Projector = SteppedFleet::Projector;

/// What a list or a script would show of a state.
std::string Words(const LiveState& state) {
  static constexpr std::array kReached{"never asked", "answers", "silent", "wrong password",
                                       "not understood"};
  static constexpr std::array kPowers{"standby", "on", "cooling down", "warming up"};
  std::string text = kReached.at(static_cast<std::size_t>(state.reachability));
  const auto add = [&](const std::string& word) { text += ", " + word; };
  if (state.power) add(kPowers.at(static_cast<std::size_t>(*state.power)));
  if (state.source) add(std::to_string(state.source->number) + ' ' + state.source->name);
  if (state.problems) {
    std::string digits;
    for (const ProblemGrade grade : *state.problems)
      digits += std::to_string(static_cast<int>(grade));
    add(digits);
  }
  for (const LampState& lamp : state.lamps) {
    add(std::to_string(lamp.hours) + (lamp.isOn ? *lamp.isOn ? " h lit" : " h out" : " h"));
  }
  if (state.filterHours) add("filter " + std::to_string(*state.filterHours) + " h");
  if (state.blank) add(*state.blank ? "blank" : "seen");
  if (state.mute) add(*state.mute ? "mute" : "heard");
  if (state.freeze) add(*state.freeze ? "frozen" : "live");
  return text;
}

constexpr char kUsual[] =
    "answers, on, 31 HDMI (31), 000000, 1200 h lit, filter 80 h, seen, heard, live";

/// Says that of a new projector, and of one that was as usual before.
std::string Told(const auto& add, const std::string& name,
                 const std::function<void(Projector&)>& make) {
  SteppedFleet fresh, known;
  make(add(fresh));
  EXPECT_EQ(Words(fresh.State("a")), "never asked");
  fresh.RunFor(20s);
  EXPECT_EQ(fresh.watcher.Tally().begun, 1) << name;
  EXPECT_EQ(fresh.projectors["a"].open, 0) << "nobody keeps a connection: " << name;
  Projector& changing = add(known);
  known.RunFor(20s);
  make(changing);
  known.RunFor(70s);
  return name + ": " + Words(fresh.State("a")) + "\n  then: " + Words(known.State("a")) + '\n';
}

TEST(FleetWatcher, TellsWhatAProjectorIsDoing) {
  const auto says = [](const std::map<std::string, std::string>& now,
                       std::chrono::hours busy = {}) {
    return [=](Projector& it) {
      it.device.busyFor = busy;
      for (const auto& [command, text] : now) {
        (it.device.states.contains(command) ? it.device.states : it.device.facts)[command] = text;
      }
    };
  };
  const std::pair<const char*, std::function<void(Projector&)>> cases[] = {
      {"as usual", [](auto&) {}},
      {"in standby", says({{"POWR", "0"}})},
      {"warming up, when it tells no more", says({{"POWR", "3"}}, 1h)},
      {"problems and lamps",
       says({{"POWR", "2"}, {"ERST", "020011"}, {"LAMP", "100 1 20000 0"}, {"AVMT", "31"}})},
      {"class 1", says({{"CLSS", "1"}})},
      {"nonsense",
       says({{"POWR", "9"}, {"INPT", "9"}, {"ERST", "9x"}, {"LAMP", "9x"}, {"AVMT", "9"}})},
      {"closes after each reply", [](auto& it) { it.device.CloseEachTime(300ms); }},
      {"falls silent in the middle", [](auto& it) { it.device.loses["ERST"] = 2; }},
      {"is not there", [](auto& it) { it.isThere = false; }},
      {"has its port closed", [](auto& it) { it.isRefusing = true; }},
      {"says nothing", [](auto& it) { it.device.greeting.clear(); }},
      {"wants a password", [](auto& it) { it.device.greeting = "PJLINK ERRA\r"; }},
      {"is something else", [](auto& it) { it.device.greeting = "220 ready\r\n"; }},
  };
  const auto model = std::make_shared<ModelData>();
  model->MySourceList.count = 1;
  model->MySourceList.names[0] = MakeNameSlot("Video");
  model->MySourceList.firstValues[0] = 3;
  namespace Code = CommandCode;
  const std::pair<const char*, std::map<std::uint16_t, int>> wireCases[] = {
      {"as usual", {}},
      {"in standby", {{Code::RunningState, 0}}},
      {"cooling down, lamp", {{Code::RunningState, 2}, {Code::ErrorStatus, 3}}},
      {"air flow, switches",
       {{Code::ErrorStatus, 5}, {Code::BlankState, 1}, {Code::Freeze, 1}, {Code::LampTime, 40000}}},
      {"an error without a name, a source without one",
       {{Code::ErrorStatus, 77}, {Code::InputSource, 9}}},
  };
  std::string told = "PJLink\n";
  const auto onPjLink = [](auto& fleet) -> Projector& { return fleet.Add("a"); };
  for (const auto& [name, make] : cases) told += Told(onPjLink, name, make);
  told += "the wire\n";
  const auto onWire = [&](auto& fleet) -> Projector& { return fleet.AddWire("a", "a", model); };
  for (const auto& [name, values] : wireCases) {
    told += Told(onWire, name, [&values](Projector& it) {
      for (const auto& [code, value] : values) it.wire->values[code] = value;
    });
  }
  told += Told(onWire, "refuses", [](auto& it) { it.wire->values.erase(Code::Freeze); });
  told += Told(onWire, "falls silent in the middle", [](auto& it) { it.answersBursts = 1; });
  told += Told(onWire, "is not there", [](auto& it) { it.isThere = false; });
  told += Told(onWire, "greets as PJLink does", [](auto& it) { it.wire.reset(); });
  ExpectRecord(TEST_SOURCE_DIR "/fleet/States.txt", told);

  const auto isState = [](const PageRow& row) { return std::holds_alternative<StateRow>(row); };
  EXPECT_EQ(std::ranges::count_if(kStatusRows.rows, isState), kStatusItems) << "all are read";
  SteppedFleet fleet;
  onWire(fleet);
  fleet.Add("b");
  fleet.RunFor(20s);
  EXPECT_EQ(fleet.projectors["a"].bursts, 2) << "the power, then all else";
  for (const char* const id : {"a", "b"}) EXPECT_EQ(fleet.State(id).answerTime, 10ms);
}

TEST(FleetWatcher, LeavesASerialPortToOthers) {
  SteppedFleet fleet;
  for (const char* const id : {"a", "same line"}) {
    fleet.watcher.Set({id, SerialAddress{.device = "line"}});
  }
  Projector& it = fleet.projectors["line"];
  it.wire = std::make_shared<WireDevice>();
  fleet.RunFor(20s);
  EXPECT_EQ(Words(fleet.State("a")),
            "answers, on, 3 , 000000, 1200 h, filter 80 h, seen, heard, live");
  EXPECT_EQ(it.mostConnections, 1);
  EXPECT_EQ(it.open, 0);
  it.isTaken = true;
  const LiveState before = fleet.State("a");
  const auto asked = it.connections.size();
  fleet.RunFor(200s);
  EXPECT_EQ(Words(fleet.State("a")), Words(before)) << "a port in use tells nothing about it";
  EXPECT_GE(it.connections.size(), asked + 4) << "as often as usual";
  EXPECT_EQ(fleet.watcher.Tally().unanswered, 0);
}

TEST(FleetWatcher, AsksNothingTwiceThatStaysAsItIs) {
  SteppedFleet fleet;
  Projector& it = fleet.Add("a");
  it.device.facts.erase("FILT");
  fleet.RunFor(30s);
  EXPECT_EQ(it.device.TakeRequests(), "POWR, CLSS, INPT, INNM ?31, ERST, AVMT, FREZ, LAMP, FILT");
  fleet.RunFor(60s);
  EXPECT_EQ(it.device.TakeRequests(), "POWR, INPT, ERST, AVMT, FREZ, LAMP") << "what is known";
  it.device.states["POWR"] = "0";
  fleet.RunFor(300s);
  const std::string asleep = it.device.TakeRequests();
  EXPECT_EQ(asleep.find_first_not_of("POWR, "), std::string::npos) << asleep;
  it.isRefusing = true;
  fleet.RunFor(70s);
  it.isRefusing = false;
  it.device.states["POWR"] = "1";
  it.device.facts["FILT"] = "7";
  fleet.RunFor(70s);
  EXPECT_EQ(fleet.State("a").filterHours, 7) << "it may be another one when it is back";
}

TEST(FleetWatcher, TellsChangesAndKeepsTheLast) {
  FleetPolicy policy;
  policy.history = 4;
  SteppedFleet fleet(policy);
  Projector& it = fleet.Add("a");
  fleet.RunFor(30s);
  fleet.states.TakeChanges();
  it.device.states["INPT"] = "32";
  it.device.facts["ERST"] = "000200";
  it.device.facts["LAMP"] = "1201 1";
  const WallTime before = fleet.Wall();
  fleet.RunFor(60s);
  const FleetChanges told = fleet.states.TakeChanges();
  ASSERT_EQ(told.changes.size(), 3);
  const StateChange& source = told.changes[0].change;
  EXPECT_EQ(told.changes[0].id, "a");
  EXPECT_EQ(source.field, StateField::Source);
  EXPECT_EQ(source.before, (FieldValue{31, "HDMI (31)"}));
  EXPECT_EQ(source.now, (FieldValue{32, "HDMI (32)"}));
  EXPECT_TRUE(source.time > before && source.time < fleet.Wall());
  EXPECT_EQ(told.changes[1].change.index, static_cast<int>(ProjectorPart::Cover));
  EXPECT_EQ(told.changes[2].change.now, FieldValue{1201});
  const auto history = fleet.states.History("a");
  ASSERT_EQ(history.size(), 4) << "bounded, and hours are no news";
  EXPECT_EQ(history.back(), told.changes[1].change);
  fleet.RunFor(120s);
  EXPECT_TRUE(fleet.states.TakeChanges().changes.empty()) << "nothing has changed";
  fleet.states.Change("a", [](LiveState& state) { state.drift = 3; });
  fleet.RunFor(60s);
  EXPECT_EQ(fleet.State("a").drift, 3);
  fleet.states.Learn("a", {PjtOperation::SetPowerOn}, {.result = 1}, {});
  EXPECT_EQ(fleet.State("a").answered, fleet.Wall());

  std::string fields;
  LiveState all;
  all.reachability = Reachability::Answers, all.power = PowerState::On;
  all.source = PlayingSource(), all.problems = PartProblems(), all.lamps.resize(2);
  all.blank = all.mute = all.freeze = true, all.filterHours = all.drift = 1;
  for (const auto& one : ChangesBetween({}, all, {})) {
    fields += std::to_string(static_cast<int>(one.field)) + std::to_string(one.index) + ' ';
  }
  EXPECT_EQ(fields, "00 10 20 30 31 32 33 34 35 40 50 60 70 71 80 90 ");
  // Each item that is read changes what it means, and nothing else.
  fields.clear();
  for (const StatusItem item : kAllStatusItems) {
    LiveState one;
    TakeStatus(one, item, 1, nullptr);
    fields += '/';
    for (const auto& each : ChangesBetween({}, one, {})) {
      fields += std::to_string(static_cast<int>(each.field));
    }
  }
  EXPECT_EQ(fields, "/1/2/333333/4/5/6/7/8");
}

TEST(FleetWatcher, MovesAlongWithAProjector) {
  SteppedFleet fleet;
  fleet.Add("a");
  fleet.RunFor(10s);
  Projector& elsewhere = fleet.Add("a", "elsewhere");
  elsewhere.device.states["POWR"] = "0";
  fleet.RunFor(10s);
  EXPECT_EQ(elsewhere.connections.size(), 1) << "at once";
  EXPECT_EQ(fleet.State("a").power, PowerState::Standby);
  EXPECT_EQ(fleet.projectors["a"].connections.size(), 1);
  fleet.watcher.Set({"nowhere", AddressError{"no address"}});
  fleet.RunFor(100s);
  EXPECT_EQ(fleet.State("nowhere").reachability, Reachability::NeverAsked);
  EXPECT_EQ(fleet.State("nowhere").connection, ConnectionState::WrongParameters);
}

TEST(FleetWatcher, AsksOnlyForWhatANoticeDoesNotTell) {
  // What is noticed, how many visits follow, and what is told before them.
  const std::tuple<FleetNetwork::Notice, int, const char*> cases[] = {
      {{"a", "POWR", "2"},
       0,
       "answers, cooling down, 31 HDMI (31), 000000, 1200 h lit, filter 80 h, seen, heard, live"},
      {{"a", "powr", "0"}, 0, "answers, standby, 000000, 1200 h lit, filter 80 h"},
      {{"a", "ERST", "002000"},
       0,
       "answers, on, 31 HDMI (31), 002000, 1200 h lit, filter 80 h, seen, heard, live"},
      {{"a", "INPT", "32"},
       0,
       "answers, on, 32 , 000000, 1200 h lit, filter 80 h, seen, heard, live"},
      {{"a", "LKUP", "00:00:5e:00:53:01"}, 1, kUsual},  // a network again
      {{"a", "POWR", "9"}, 1, kUsual},
      {{"b", "POWR", "0"}, 0, kUsual},
  };
  for (const auto& [notice, visits, told] : cases) {
    SteppedFleet fleet;
    Projector& it = fleet.Add("a");
    fleet.RunFor(10s);
    fleet.watcher.Events().Noticed(notice);
    EXPECT_EQ(Words(fleet.State("a")), told) << notice.value;
    fleet.RunFor(20s);
    EXPECT_EQ(it.connections.size(), 1 + visits) << notice.value;
  }
  SteppedFleet fleet;
  Projector& it = fleet.Add("a");
  it.device.states["POWR"] = "0";
  fleet.RunFor(10s);
  it.device.states["POWR"] = "1";
  fleet.watcher.Events().Noticed({"a", "POWR", "3"});
  EXPECT_EQ(Words(fleet.State("a")), "answers, warming up");
  fleet.watcher.Events().Noticed({"a", "POWR", "1"});
  fleet.RunFor(10s);
  EXPECT_EQ(Words(fleet.State("a")), kUsual) << "one that is on has more to tell";
  it.device.answers = 100ms;
  fleet.RunFor(50s);
  while (it.open == 0) fleet.RunFor(1ms);
  fleet.watcher.Events().Noticed({"a", "POWR", "0"});
  const auto asked = it.connections.size();
  fleet.RunFor(10s);
  EXPECT_EQ(it.connections.size(), asked + 1) << "the visit may have asked too early";
  it.isThere = false;
  fleet.RunFor(90s);
  EXPECT_EQ(Words(fleet.State("a")).substr(0, 6), "silent");
  it.isThere = true;
  fleet.watcher.Events().Noticed({"a", "POWR", "1"});
  fleet.RunFor(10s);
  EXPECT_EQ(Words(fleet.State("a")), kUsual) << "it is there again";
}

}  // namespace
