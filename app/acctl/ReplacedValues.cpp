#include "app/acctl/ReplacedValues.h"

#include <utility>

#include "app/acctl/Message.h"
#include "app/acctl/UndoRuns.h"

bool KeepUndo(const Work& work, const std::string& projector, const Snapshot& undo) {
  const auto id = work.undoIds.find(projector);
  return id == work.undoIds.end() || work.undo->Keep(id->second, undo);
}

void KeepRun(const Work& work, const std::string& projector) {
  if (work.undoIds.contains(projector)) work.undo->KeepRun();
}

void ReplacedValues::Keep(const ModelSetting& setting, std::optional<int> before,
                          std::optional<int> aim, std::optional<int> source) {
  choice_.reset();
  if (before && before == aim) return;
  if (!setting.Restorable() || !before) {
    KeepRun(work_, projector_.Name());
    return;
  }
  const auto saved = [&](int value) {
    return SavedSetting{.key = std::string(setting.key),
                        .value = value,
                        .text = work_.texts.Shown().Value(setting, value),
                        .source = setting.of != OfSource::None ? source : std::nullopt};
  };
  if (setting.kind == ModelSetting::Kind::Choice && aim) choice_ = saved(*aim);
  replaced_.insert(replaced_.begin(), saved(*before));
  Snapshot undo = EmptySnapshot(projector_.Name(), projector_.Settings().Model());
  if (replaced_.size() == 1) {
    undo.settings = replaced_;
  } else {
    undo.beforehand = modes_;
    undo.beforehand.insert(undo.beforehand.end(), replaced_.begin(), replaced_.end());
  }
  isKept_ = KeepUndo(work_, projector_.Name(), undo) && isKept_;
}

void ReplacedValues::Confirm() {
  if (choice_) modes_.push_back(*std::exchange(choice_, std::nullopt));
}

void ReplacedValues::ReportFailure(Report& report) const {
  if (isKept_) return;
  report.Add({.code = ProblemCode::File,
              .text = Message(Acctl::tr("this cannot be undone: %1"), work_.undo->Error()),
              .exitCode = ExitCode::Done});
}
