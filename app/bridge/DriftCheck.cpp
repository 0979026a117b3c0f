#include "app/bridge/DriftCheck.h"

#include <map>
#include <utility>
#include <vector>

#include <QDir>

#include "app/bridge/Log.h"
#include "fleet/WholeFile.h"

namespace {

constexpr std::chrono::hours kEvery{24};
constexpr std::size_t kAtOnce = 4;
constexpr qsizetype kLargestFile = 1 << 20;

/// Null if it cannot be read.
std::shared_ptr<const Snapshot> ReadSnapshotFile(const QString& path) {
  const FileBytes file = ReadToEnd(path, kLargestFile);
  SnapshotContents contents = ReadSnapshot(file.bytes);
  const QString error = file.error.isEmpty() ? contents.error : file.error;
  if (error.isEmpty()) return std::make_shared<const Snapshot>(std::move(contents.snapshot));
  Log(path + ": " + error);
  return nullptr;
}

}  // namespace

DriftCheck::DriftCheck(BridgeFleet& fleet, const SettingTexts& texts, QString folder)
    : fleet_(fleet), texts_(texts), folder_(std::move(folder)) {
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Check(); });
}

void DriftCheck::Start(std::chrono::milliseconds first) {
  first_ = first;
  timer_.start(first_);
}

void DriftCheck::PutOff() {
  if (job_) job_->Cancel();
  if (timer_.isActive()) timer_.start(first_);
}

void DriftCheck::Check() {
  timer_.start(kEvery);
  std::map<std::string, std::shared_ptr<const Snapshot>> files;
  std::vector<FleetTarget> targets;
  CompareSnapshots work;
  for (const FleetProfile& profile : fleet_.Projectors().All()) {
    const QString name = QString::fromStdString(profile.snapshot);
    if (name.isEmpty() || name.contains('/')) continue;
    const auto [file, isNew] = files.try_emplace(profile.snapshot);
    if (isNew) file->second = ReadSnapshotFile(QDir(folder_).filePath(name + ".json"));
    if (!file->second) continue;
    work.snapshots.emplace(FleetIdOf(profile), file->second);
    targets.push_back(TargetOf(profile));
  }
  job_.reset();
  if (targets.empty()) return;
  FleetJob::Options options;
  options.atOnce = kAtOnce;
  job_ = std::make_unique<FleetJob>(&fleet_.Watched(), std::move(targets), std::move(work), texts_,
                                    options);
}
