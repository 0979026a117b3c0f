// A fleet and its projectors in a time of their own. Told.txt is a script of what happens to them,
// and the record of what the fleet tells then: after an intended change, rewrite it with
// UPDATE_LISTING=1 and review the differences.

#include <array>
#include <cmath>

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

/// The lines of a script with what each has changed.
class Played {
 public:
  explicit Played(std::istream& script) {
    for (std::string line; std::getline(script, line);) {
      if (line.starts_with("  ")) continue;  // what was changed before
      text_ += line + '\n';
      if (line.empty() || line.front() == '#') continue;
      std::istringstream words(line);
      std::string verb;
      id_ = key_ = value_ = {};
      words >> verb >> id_ >> key_;
      std::getline(words >> std::ws, value_);
      verbs_.at(verb)();
      Tell();
    }
  }
  const std::string& Text() const { return text_; }

 private:
  static std::chrono::milliseconds Seconds(const std::string& text) {
    return std::chrono::milliseconds(std::lround(std::stod(text) * 1000));
  }
  SteppedFleet::Projector& At() { return fleet_->projectors[id_]; }
  std::uint16_t Code() const { return static_cast<std::uint16_t>(std::stoi(key_, nullptr, 16)); }
  VisitQueue::Address Place() const { return {id_, PjLinkAddress().port}; }

  void Tell() {
    const auto states = fleet_->states.States();
    for (const auto& [id, state] : std::map(states.begin(), states.end())) {
      const auto connection = static_cast<int>(state.connection);
      const std::string now = Words(state) + " (" + std::to_string(connection) + ")";
      if (std::exchange(told_[id], now) != now) text_.append("  " + id + ": ").append(now + '\n');
    }
    for (auto& [host, it] : fleet_->projectors) {
      const std::pair now{it.connections.size(), it.open};
      const auto before = std::exchange(connections_[host], now);
      if (before == now) continue;
      const std::string asked = it.wire ? std::to_string(it.bursts) : it.device.TakeRequests();
      text_ += "  " + host + " +" + std::to_string(now.first - before.first) +
               (it.open > 0 ? " open" : "") + (asked.empty() ? "" : ": " + asked) + '\n';
      EXPECT_LE(it.mostConnections, 1) << host;
    }
  }

  void Says() {
    auto& device = At().device;
    (device.states.contains(key_) ? device.states : device.facts)[key_] = value_;
  }
  void TakeInputs() {
    for (int i = 0; i < std::stoi(key_); ++i) {
      At().device.states["INPT"] = {"123"[i / 26], static_cast<char>('A' + i % 26)};
      fleet_->RunFor(60s);
    }
    At().device.TakeRequests();
  }
  void Set(ProjectorAddress address) { fleet_->watcher.Set({id_, std::move(address)}); }
  void Notice() { fleet_->watcher.Events().Noticed({id_, key_, value_}); }
  void Learn() {
    const auto value = static_cast<std::int16_t>(std::stoi(value_));
    fleet_->states.Learn(id_, {PjtOperation::Get, Code()}, {.result = 1, .value = value}, {});
  }
  void Wire() {
    const auto model = std::make_shared<ModelData>();
    model->MySourceList.count = 1;
    model->MySourceList.names[0] = MakeNameSlot("Video");
    model->MySourceList.firstValues[0] = 3;
    fleet_->AddWire(id_, id_, model);
  }
  void TellTally() {
    const FleetTally& all = fleet_->watcher.Tally();
    text_ += "  " + std::to_string(all.begun) + " begun, " + std::to_string(all.answered) +
             " answered, " + std::to_string(all.unanswered) + " unanswered, " +
             std::to_string(all.abandoned) + " abandoned\n";
  }

  const std::map<std::string_view, std::function<void()>> verbs_{
      {"==",
       [&] { fleet_.emplace(FleetPolicy{.jitter = 0}), told_.clear(), connections_.clear(); }},
      {"add", [&] { fleet_->Add(id_, key_.empty() ? id_ : key_); }},
      {"line", [&] { Set(SerialAddress{.device = key_}); }},
      {"wired", [&] { At().wire = std::make_shared<WireDevice>(); }},
      {"wire", [&] { Wire(); }},
      {"value", [&] { At().wire->values[Code()] = std::stoi(value_); }},
      {"lacks", [&] { At().wire->values.erase(Code()); }},
      {"wrong", [&] { Set(AddressError()); }},
      {"remove", [&] { fleet_->watcher.Remove(id_); }},
      {"says", [&] { Says(); }},
      {"inputs", [&] { TakeInputs(); }},
      {"busy", [&] { At().device.busyFor = Seconds(key_); }},
      {"answers", [&] { At().device.answers = Seconds(key_); }},
      {"hasty", [&] { At().device.CloseEachTime(Seconds(key_)); }},
      {"loses", [&] { At().device.loses[key_] = std::stoi(value_); }},
      {"greets", [&] { At().device.greeting = key_.empty() ? "" : key_ + ' ' + value_ + '\r'; }},
      {"gone", [&] { At().isThere = key_ == "no"; }},
      {"refuses", [&] { At().isRefusing = key_ != "no"; }},
      {"taken", [&] { At().isTaken = true; }},
      {"notice", [&] { Notice(); }},
      {"learn", [&] { Learn(); }},
      {"ask", [&] { fleet_->watcher.AskSoon(id_); }},
      {"pause", [&] { fleet_->watcher.Pause(id_); }},
      {"resume", [&] { fleet_->watcher.Resume(id_); }},
      {"hold", [&] { fleet_->watcher.Hold(Place()); }},
      {"release", [&] { fleet_->watcher.Release(Place()); }},
      {"asking", [&] { fleet_->watcher.SetAsking(id_ == "on"); }},
      {"interval", [&] { fleet_->watcher.SetInterval(Seconds(id_)); }},
      {"run", [&] { fleet_->RunFor(Seconds(id_)); }},
      {"visit",
       [&] {
         while (At().open == 0) fleet_->RunFor(1ms);
       }},
      {"tally", [&] { TellTally(); }},
  };
  std::string text_;
  std::optional<SteppedFleet> fleet_;
  std::map<std::string, std::string> told_;
  std::map<std::string, std::pair<std::size_t, int>> connections_;
  std::string id_, key_, value_;  ///< Of the present line.
};

TEST(FleetWatcher, TellsAndAsksAsRecorded) {
  const char* const file = TEST_SOURCE_DIR "/fleet/Told.txt";
  std::ifstream script(file);
  ExpectRecord(file, Played(script).Text());
}

TEST(FleetWatcher, ReadsWhatTheStatusPageShowsOnTheWireOnly) {
  const auto isState = [](const PageRow& row) { return std::holds_alternative<StateRow>(row); };
  EXPECT_EQ(std::ranges::count_if(kStatusRows.rows, isState), kStatusItems);
  SteppedFleet fleet;
  fleet.AddWire("a").wire.reset();  // it speaks PJLink
  fleet.RunFor(20s);
  EXPECT_EQ(fleet.State("a").reachability, Reachability::NotUnderstood);
}

TEST(FleetWatcher, TellsChangesAndKeepsTheLast) {
  SteppedFleet fleet({.history = 4});
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

}  // namespace
