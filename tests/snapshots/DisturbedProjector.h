#pragma once

#include <map>
#include <memory>
#include <random>
#include <utility>

#include "app/profiles/ProjectorAccess.h"
#include "fleet/ProfileFile.h"
#include "snapshots/Restoration.h"
#include "tests/support/Texts.h"

// Simulated projectors of the profile file, with faults.

inline const std::vector<FleetProfile>& Profiles() {
  static const auto profiles = ReadProfileList(TEST_CATALOG_DIR "/projectors.json").profiles;
  return profiles;
}

inline const FleetProfile& Profile(std::string_view name) {
  return *std::ranges::find(Profiles(), name, &FleetProfile::name);
}

/// What a projector should be like.
inline Snapshot Wanted(std::vector<SavedSetting> settings,
                       std::vector<SavedSetting> beforehand = {}) {
  Snapshot wanted;
  wanted.settings = std::move(settings);
  wanted.beforehand = std::move(beforehand);
  return wanted;
}

/// Settings that a projector keeps for each source, or for each source and mode.
struct Memory {
  using Values = std::vector<int>;

  /// Restores the values of the source or mode that has been set since.
  void Follow(SimulatedProjector& projector) {
    const auto read = [&projector](const std::vector<SettingId>& which) {
      Values values;
      for (const SettingId id : which) values.push_back(projector.Value(id));
      return values;
    };
    const Values now = read(selectors);
    if (now != present && !present.empty()) {
      std::size_t number = kept.contains(now) ? 0 : kept.size();
      for (std::size_t i = 0; i < ids.size(); ++i, ++number) {
        const auto list = projector.ValuesOf(ids[i]);
        const int some = list.empty()
                             ? projector.RangeOf(ids[i]).minimum + static_cast<int>(number % 15)
                             : list[number % list.size()];
        projector.SetValue(ids[i], kept.contains(now) ? kept[now][i] : some);
      }
    }
    present = now;
    kept[now] = read(ids);
    fresh.emplace(now, kept[now]);
  }
  /// Whether all values are the same, including new ones.
  bool IsLike(Memory then) const {
    then.kept.insert(fresh.begin(), fresh.end());
    return kept == then.kept;
  }

  std::vector<SettingId> selectors, ids;
  Values present{};
  std::map<Values, Values> kept{}, fresh{};
};

/// A projector whose commands may be refused, get lost, lose their replies, be carried out after
/// they were given up, or remain unanswered for good. Replies can also be scripted.
struct Disturbed : ProjectorChannel {
  PjtReply Execute(const PjtCommand& command) override {
    ++count;
    const bool isChange = !IsRead(command.operation);
    if (isChange) ++sent;
    CarryOutLate(count);
    const PjtReply lost{.result = RefusedResult(command.operation), .answered = false};
    if (count > trouble.deadAfter || Happens(trouble.lostPercent)) return lost;
    if (isChange && (sent == trouble.lateChange || Happens(trouble.latePercent))) {
      late.emplace(count + trouble.lateBy, command);
      return lost;
    }
    if (Happens(trouble.refusedPercent)) return {.result = RefusedResult(command.operation)};
    const PjtReply reply = CarryOut(command);
    return Happens(trouble.lostPercent) ? lost : reply;
  }
  void Announce(std::span<const PjtCommand> reads) override {
    announced += static_cast<int>(reads.size());
  }
  PjtReply CarryOut(const PjtCommand& command) {
    const PjtReply reply = projector.Execute(command);
    for (Memory& memory : memories) memory.Follow(projector);
    return reply;
  }
  /// Carries out the late changes due before the command with this number, or all of them.
  void CarryOutLate(int number = 1 << 30) {
    while (!late.empty() && late.begin()->first < number) {
      CarryOut(late.extract(late.begin()).mapped());
    }
  }
  bool Happens(int percent) { return static_cast<int>(random() % 100) < percent; }

  explicit Disturbed(const FleetProfile& profile) : projector(SimulatedModelOf(profile)) {}
  SimulatedProjector projector;
  std::vector<Memory> memories{};
  std::minstd_rand random{7};
  struct Trouble {
    int refusedPercent = 0, lostPercent = 0, deadAfter = 1 << 30;
    int latePercent = 0, lateBy = 0;  ///< Number of commands before a late change is carried out.
    int lateChange = 0;               ///< The number of the late change, from 1.
  } trouble{};
  std::multimap<int, PjtCommand> late{};
  int count = 0, sent = 0, announced = 0;
};

inline Restoration Restore(
    const ModelSettings& settings, CPjtInterface& connection, const Snapshot& snapshot,
    Snapshot* undo = nullptr, const std::function<bool()>& goesOn = [] { return true; }) {
  Restoration restoration(snapshot, settings, connection);
  restoration.Read({.goesOn = goesOn});
  restoration.Send(Texts(), {.goesOn = goesOn}, [&] {
    if (undo != nullptr && goesOn()) *undo = restoration.Undo("", Texts());
    return true;
  });
  return restoration;
}

/// A projector with a connection to it.
struct ConnectedProjector {
  explicit ConnectedProjector(const FleetProfile& profile)
      : channel(std::make_shared<Disturbed>(profile)),
        settings(profile.model->data),
        name(profile.name) {
    connection.SetChannel(channel);
  }

  void ChangeAll(unsigned seed) {
    std::minstd_rand random(seed);
    for (const ModelSetting& setting : settings.All()) {
      if (!setting.Restorable()) continue;
      const Range range = setting.range.value_or(Range{100, 120});
      const auto size = static_cast<unsigned>(range.maximum - range.minimum + 1);
      const int value = setting.kind == ModelSetting::Kind::Choice
                            ? setting.entries[random() % setting.entries.size()].value
                            : range.minimum + static_cast<int>(random() % size);
      settings.Change(connection, setting, value);
    }
  }

  Snapshot Take() { return TakeSnapshot(name, settings, connection, Texts()); }

  Restoration Restore(
      const Snapshot& snapshot, Snapshot* undo = nullptr,
      const std::function<bool()>& goesOn = [] { return true; }) {
    return ::Restore(settings, connection, snapshot, undo, goesOn);
  }

  std::shared_ptr<Disturbed> channel;
  ModelSettings settings;
  CPjtInterface connection;
  std::string name;
};
