#include "app/desktop/DriftCheck.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QWidget>

#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/work/WorkActions.h"
#include "app/profiles/PresetFolder.h"

namespace {

constexpr std::chrono::minutes kFirst{1};
constexpr std::chrono::hours kEvery{1};

}  // namespace

DriftCheck::DriftCheck(const ProfileDocument& document, FleetWatch& watch, const WorkActions& work,
                       QWidget& window)
    : QObject(&window), document_(document), watch_(watch), work_(work), window_(window) {
  connect(&timer_, &QTimer::timeout, this, [this] {
    timer_.setInterval(kEvery);
    CheckAll();
  });
  timer_.start(kFirst);
  connect(&work_, &WorkActions::Finished, this, &DriftCheck::CheckAfter);
  for (const FleetProfile& profile : document_.Projectors())
    if (!profile.snapshot.empty()) wanted_[FleetIdOf(profile)].preset = profile.snapshot;
}

void DriftCheck::TakeProfiles() {
  auto before = std::exchange(wanted_, {});
  std::set<std::string> changed;
  for (const FleetProfile& profile : document_.Projectors()) {
    const std::string id = FleetIdOf(profile);
    Wanted wanted = before[id];
    if (wanted.preset != profile.snapshot) {
      wanted = {.preset = profile.snapshot};
      changed.insert(id);
    }
    if (!wanted.preset.empty()) wanted_[id] = std::move(wanted);
  }
  for (const std::string& id : changed) {
    watch_.Projectors().LearnDrift(id, {});
    seen_.erase(id);
  }
  Check(changed);
}

void DriftCheck::CheckAll() {
  std::set<std::string> all;
  for (const FleetProfile& profile : document_.Projectors()) all.insert(FleetIdOf(profile));
  Check(all);
}

void DriftCheck::CheckPreset(const std::string& name) {
  std::set<std::string> ids;
  for (auto& [id, wanted] : wanted_) {
    if (wanted.preset != name) continue;
    wanted.compared = nullptr;
    ids.insert(id);
  }
  Check(ids);
}

void DriftCheck::CheckAfter(const WorkRun& run) {
  std::set<std::string> ids;
  for (const WorkPart& part : run.Plan().parts) {
    if (!std::holds_alternative<SetSetting>(part.work) &&
        !std::holds_alternative<ApplySnapshots>(part.work))
      continue;
    for (const FleetTarget& target : part.targets) ids.insert(target.id);
  }
  Check(ids);
}

// A preset that cannot be read counts as none. The reason is shown when it is used.
void DriftCheck::Check(const std::set<std::string>& ids) {
  std::map<std::string, std::shared_ptr<const Snapshot>> presets;
  CompareSnapshots compare{.areWanted = false};  // the fleet is told in `Keep`
  WorkPart part;
  for (const FleetProfile& profile : document_.Projectors()) {
    const std::string id = FleetIdOf(profile);
    if (profile.snapshot.empty() || !ids.contains(id)) continue;
    const auto state = watch_.Projectors().State(id);
    if (state && state->power == PowerState::Standby) continue;  // it cannot report them now
    const auto [preset, isNew] = presets.try_emplace(profile.snapshot);
    if (isNew)
      preset->second = PresetFolder::Read(QString::fromStdString(profile.snapshot)).snapshot;
    if (!preset->second) continue;
    compare.snapshots[id] = wanted_[id].compared = preset->second;
    part.targets.push_back(watch_.TargetOf(profile));
  }
  if (part.targets.empty()) return;
  part.work = std::move(compare);
  auto* run = new WorkRun(watch_, work_.Texts(),
                          {.title = {}, .question = {}, .parts = {std::move(part)}}, &window_);
  // Each projector as soon as it is compared, because thousands take a while.
  std::vector<bool> kept(run->Lines().size());
  connect(run, &WorkRun::Progressed, this, [this, run, kept = std::move(kept)]() mutable {
    for (std::size_t i = 0; i < kept.size(); ++i) {
      const WorkLine& line = run->Lines()[i];
      if (kept[i] || !line.differences) continue;
      kept[i] = true;
      Keep(*run, line);
    }
  });
  connect(run, &WorkRun::Finished, run, &QObject::deleteLater);
  run->Start();
}

void DriftCheck::Keep(const WorkRun& run, const WorkLine& line) {
  const auto& compared = std::get<CompareSnapshots>(run.Plan().parts.front().work).snapshots;
  const std::shared_ptr<const Snapshot>& preset = compared.at(line.id);
  const auto wanted = wanted_.find(line.id);
  if (wanted == wanted_.end() || wanted->second.compared != preset) return;
  using Kind = SettingDifference::Kind;
  const std::vector<SettingDifference>& all = *line.differences;
  const auto differing = std::ranges::count(all, Kind::Differs, &SettingDifference::kind);
  // One that reports nothing now is not known to be as it should be.
  if (differing > 0 || all.size() < preset->settings.size())
    watch_.Projectors().LearnDrift(line.id, static_cast<int>(differing));
  Snapshot& seen = seen_[line.id];
  seen = *preset;
  for (const SettingDifference& difference : all) {
    const auto same = std::ranges::find_if(seen.settings, [&](const SavedSetting& saved) {
      return saved.key == difference.saved.key && saved.source == difference.saved.source;
    });
    if (same == seen.settings.end()) continue;
    if (difference.here) {
      same->value = *difference.here;
    } else {
      seen.settings.erase(same);  // nobody knows
    }
  }
  Q_EMIT Checked(line.id);
}

Snapshot DriftCheck::LastSeen(const std::string& id) const {
  const auto found = seen_.find(id);
  return found == seen_.end() ? Snapshot() : found->second;
}
