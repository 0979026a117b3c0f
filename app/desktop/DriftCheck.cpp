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
    if (!profile.snapshot.empty()) presets_[FleetIdOf(profile)] = profile.snapshot;
}

void DriftCheck::TakeProfiles() {
  auto before = std::exchange(presets_, {});
  std::set<std::string> changed;
  for (const FleetProfile& profile : document_.Projectors()) {
    const std::string id = FleetIdOf(profile);
    if (!profile.snapshot.empty()) presets_[id] = profile.snapshot;
    const auto known = before.find(id);
    if ((known == before.end() ? std::string() : known->second) != profile.snapshot)
      changed.insert(id);
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
  for (const auto& [id, preset] : presets_)
    if (preset == name) ids.insert(id);
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
  CompareSnapshots compare;
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
    compare.snapshots[id] = preset->second;
    part.targets.push_back(watch_.TargetOf(profile));
  }
  if (part.targets.empty()) return;
  part.work = std::move(compare);
  auto* run = new WorkRun(watch_, work_.Texts(),
                          {.title = {}, .question = {}, .parts = {std::move(part)}}, &window_);
  connect(run, &WorkRun::Finished, this, [this, run] {
    Keep(*run);
    run->deleteLater();
  });
  run->Start();
}

void DriftCheck::Keep(const WorkRun& run) {
  const auto& compared = std::get<CompareSnapshots>(run.Plan().parts.front().work).snapshots;
  for (const WorkLine& line : run.Lines()) {
    if (!line.differences) continue;
    Snapshot& seen = seen_[line.id];
    seen = *compared.at(line.id);
    for (const SettingDifference& difference : *line.differences) {
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
}

Snapshot DriftCheck::LastSeen(const std::string& id) const {
  const auto found = seen_.find(id);
  return found == seen_.end() ? Snapshot() : found->second;
}
