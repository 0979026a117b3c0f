#include "app/bridge/DriftCheck.h"

#include <utility>

#include <QDir>

#include "app/bridge/Log.h"
#include "fleet/WholeFile.h"

namespace {

constexpr std::chrono::hours kEvery{24};
constexpr std::chrono::hours kAgain{1};  // after a check without a result
constexpr std::size_t kAtOnce = 4;
constexpr qsizetype kLargestFile = 1 << 20;

}  // namespace

DriftCheck::DriftCheck(BridgeFleet& fleet, const SettingTexts& texts, QString folder)
    : fleet_(fleet), texts_(texts), folder_(std::move(folder)) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Check(); });
}

void DriftCheck::Start(std::chrono::milliseconds pause) { timer_.start(pause); }

void DriftCheck::PutOff() {
  if (job_) job_->Cancel();
  checked_.clear();
  turns_.clear();
  if (timer_.isActive()) timer_.start();
}

void DriftCheck::Check() {
  TakeResults();
  if (job_) return;
  const auto now = std::chrono::steady_clock::now();
  const ShareProfiles& projectors = fleet_.Projectors();
  std::map<std::string, std::shared_ptr<const Snapshot>> files;
  std::vector<FleetTarget> targets;
  CompareSnapshots work;
  for (std::size_t i = 0; i < projectors.Count(); ++i) {
    const FleetProfile& profile = projectors.Profile(i);
    if (profile.snapshot.empty() || profile.snapshot.find('/') != std::string::npos) continue;
    const std::string identity = FleetIdOf(profile);
    const LiveState state = fleet_.State(i);
    const bool isOn = state.power == PowerState::On;
    Turn& turn = turns_[identity];
    const bool isDue = now >= turn.next || (isOn && turn.soonerWhenOn);
    if (!isDue || state.reachability != Reachability::Answers) continue;
    turn = {now + kAgain, !isOn};
    const auto [file, isNew] = files.try_emplace(profile.snapshot);
    if (isNew) file->second = Read(profile.snapshot);
    if (!file->second) continue;
    work.snapshots.emplace(identity, file->second);
    targets.push_back(TargetOf(profile));
    checked_.push_back(identity);
  }
  if (targets.empty()) return;
  FleetJob::Options options;
  options.atOnce = kAtOnce;
  job_ = std::make_unique<FleetJob>(&fleet_.Watched(), std::move(targets), std::move(work), texts_,
                                    options);
}

void DriftCheck::TakeResults() {
  if (!job_) return;
  if (const auto [finished, all] = job_->HowFar(); finished < all) return;
  const std::vector<WorkResult> results = job_->Results();
  for (std::size_t i = 0; i < checked_.size(); ++i) {
    if (!results[i].differing) continue;
    Turn& turn = turns_[checked_[i]];
    turn = {turn.next + kEvery - kAgain, false};
  }
  checked_.clear();
  job_.reset();
}

/// Null if it cannot be read, which is logged once.
std::shared_ptr<const Snapshot> DriftCheck::Read(const std::string& name) {
  const QString path = QDir(folder_).filePath(QString::fromStdString(name) + ".json");
  const FileBytes file = ReadToEnd(path, kLargestFile);
  SnapshotContents contents = ReadSnapshot(file.bytes);
  const QString error = file.error.isEmpty() ? contents.error : file.error;
  if (error.isEmpty()) {
    unread_.erase(name);
    return std::make_shared<const Snapshot>(std::move(contents.snapshot));
  }
  if (unread_.insert(name).second) Log(path + ": " + error);
  return nullptr;
}
