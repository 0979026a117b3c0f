// A fleet and its projectors in a time of their own.

#include <algorithm>
#include <array>
#include <functional>
#include <tuple>

#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "settings/PageTables.h"
#include "tests/fleet/SteppedFleet.h"

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
  const std::tuple<const char*, std::function<void(Projector&)>, const char*> cases[] = {
      {"as usual", [](auto&) {}, kUsual},
      {"in standby", says({{"POWR", "0"}}), "answers, standby"},
      {"warming up, when it tells no more", says({{"POWR", "3"}}, 1h), "answers, warming up"},
      {"problems and lamps",
       says({{"POWR", "2"}, {"ERST", "020011"}, {"LAMP", "100 1 20000 0"}, {"AVMT", "31"}}),
       "answers, cooling down, 31 HDMI (31), 020011, 100 h lit, 20000 h out, filter 80 h, blank, "
       "mute, live"},
      {"class 1", says({{"CLSS", "1"}}),
       "answers, on, 31 Digital 1 (31), 000000, 1200 h lit, seen, heard"},
      {"nonsense", says({{"POWR", "9"}, {"INPT", "9"}, {"ERST", "9x"}, {"LAMP", "9x"}}),
       "answers, filter 80 h, seen, heard, live"},
      {"closes after each reply", [](auto& it) { it.device.CloseEachTime(300ms); }, kUsual},
      {"falls silent in the middle", [](auto& it) { it.device.loses["ERST"] = 2; },
       "answers, on, 31 HDMI (31)"},
      {"is not there", [](auto& it) { it.isThere = false; }, "silent"},
      {"has its port closed", [](auto& it) { it.isRefusing = true; }, "silent"},
      {"says nothing", [](auto& it) { it.device.greeting.clear(); }, "silent"},
      {"wants a password", [](auto& it) { it.device.greeting = "PJLINK ERRA\r"; },
       "wrong password"},
      {"is something else", [](auto& it) { it.device.greeting = "220 ready\r\n"; },
       "not understood"},
  };
  for (const auto& [name, make, told] : cases) {
    SCOPED_TRACE(name);
    SteppedFleet fleet;
    make(fleet.Add("a"));
    EXPECT_EQ(Words(fleet.State("a")), "never asked");
    fleet.RunFor(20s);
    EXPECT_EQ(Words(fleet.State("a")), told);
    EXPECT_EQ(fleet.watcher.Tally().begun, 1);
    EXPECT_EQ(fleet.watcher.Tally().unanswered, *told == 'a' ? 0 : 1);
    EXPECT_EQ(fleet.projectors["a"].open, 0) << "nobody keeps a connection";
  }
}

TEST(FleetWatcher, TellsWhatTheStatusPageShowsOfAProjectorOnTheWire) {
  namespace Code = CommandCode;
  const std::tuple<const char*, std::map<std::uint16_t, int>, const char*> cases[] = {
      {"as usual", {}, "answers, on, 3 Video, 000000, 1200 h, filter 80 h, seen, heard, live"},
      {"in standby", {{Code::RunningState, 0}}, "answers, standby"},
      {"cooling down, lamp",
       {{Code::RunningState, 2}, {Code::ErrorStatus, 3}},
       "answers, cooling down, 3 Video, 020000, 1200 h, filter 80 h, seen, heard, live"},
      {"air flow, switches",
       {{Code::ErrorStatus, 5}, {Code::BlankState, 1}, {Code::Freeze, 1}, {Code::LampTime, 40000}},
       "answers, on, 3 Video, 000020, 40000 h, filter 80 h, blank, heard, frozen"},
      {"an error without a name, a source without one",
       {{Code::ErrorStatus, 77}, {Code::InputSource, 9}},
       "answers, on, 9 , 000002, 1200 h, filter 80 h, seen, heard, live"},
  };
  const auto isState = [](const PageRow& row) { return std::holds_alternative<StateRow>(row); };
  EXPECT_EQ(std::ranges::count_if(kStatusRows.rows, isState), kStatusItems) << "all are read";
  const auto model = std::make_shared<ModelData>();
  model->MySourceList.count = 1;
  model->MySourceList.names[0] = MakeNameSlot("Video");
  model->MySourceList.firstValues[0] = 3;
  for (const auto& [name, values, told] : cases) {
    SCOPED_TRACE(name);
    SteppedFleet fleet;
    Projector& it = fleet.AddWire("a", "a", model);
    for (const auto& [code, value] : values) it.wire->values[code] = value;
    fleet.RunFor(20s);
    EXPECT_EQ(Words(fleet.State("a")), told);
    EXPECT_EQ(it.bursts, fleet.State("a").power == PowerState::Standby ? 1 : 2);
  }
  SteppedFleet fleet;
  fleet.AddWire("refuses").wire->values.erase(Code::Freeze);
  fleet.AddWire("gone").isThere = false;
  fleet.AddWire("greets").wire.reset();  // as PJLink does
  fleet.RunFor(20s);
  EXPECT_EQ(Words(fleet.State("refuses")),
            "answers, on, 3 , 000000, 1200 h, filter 80 h, seen, heard");
  EXPECT_EQ(Words(fleet.State("gone")), "silent");
  EXPECT_EQ(Words(fleet.State("greets")), "not understood");
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
  EXPECT_LE(it.connections.size(), asked + 8);
  EXPECT_EQ(fleet.watcher.Tally().unanswered, 0);
  EXPECT_EQ(fleet.watcher.Tally().abandoned, it.connections.size() - asked);
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
  fleet.states.Change("b", [](LiveState&) { FAIL(); });
  fleet.states.Learn("b", {PjtOperation::SetPowerOn}, {.result = 1}, {});
  EXPECT_TRUE(fleet.states.History("b").empty());
  fleet.states.TakeChanges();
  int drift = 3;
  for (const int more : {100'000, 1001}) {
    for (int i = 0; i < more; ++i) {
      fleet.states.Change("a", [&](LiveState& state) { state.drift = ++drift; });
    }
    const FleetChanges kept = fleet.states.TakeChanges();
    EXPECT_EQ(kept.areMissing, more == 1001);
    EXPECT_EQ(kept.changes[0].change.now, FieldValue{more == 1001 ? 1005 : 4});
  }

  std::string fields;
  LiveState all;
  all.reachability = Reachability::Answers, all.power = PowerState::On;
  all.source = PlayingSource(), all.problems = PartProblems(), all.lamps = {{}};
  all.blank = all.mute = all.freeze = true, all.filterHours = all.drift = 1;
  for (const auto& one : ChangesBetween({}, all, {})) {
    fields += std::to_string(static_cast<int>(one.field)) + std::to_string(one.index) + ' ';
  }
  EXPECT_EQ(fields, "00 10 20 30 31 32 33 34 35 40 50 60 70 80 90 ");
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
  fleet.watcher.Events().Noticed({"elsewhere", "POWR", "2"});
  fleet.watcher.Events().Noticed({"a", "POWR", "3"});
  EXPECT_EQ(fleet.State("a").power, PowerState::CoolingDown) << "what was there is another";
  elsewhere.device.states["POWR"] = "1";
  elsewhere.device.TakeRequests();
  fleet.RunFor(70s);
  EXPECT_EQ(elsewhere.device.TakeRequests().substr(0, 10), "POWR, CLSS") << "as this is";
  fleet.watcher.Remove("a");
  fleet.watcher.Events().Noticed({"elsewhere", "POWR", "2"});
  const auto nowhere = {"nowhere", "nor here"};
  for (const char* const id : nowhere) fleet.watcher.Set({id, AddressError{"no address"}});
  fleet.RunFor(100s);
  for (const char* const id : nowhere) {
    EXPECT_EQ(fleet.State(id).reachability, Reachability::NeverAsked);
    EXPECT_EQ(fleet.State(id).connection, ConnectionState::WrongParameters);
  }
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
  fleet.RunFor(10s);
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
  fleet.watcher.Events().Noticed({"a", "ERST", "002000"});
  fleet.RunFor(10s);
  EXPECT_EQ(Words(fleet.State("a")), kUsual) << "it is there again";
}

}  // namespace
