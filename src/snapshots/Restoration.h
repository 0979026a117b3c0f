#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "snapshots/RestoredSetting.h"
#include "snapshots/Snapshot.h"

namespace AdvancedControl {

/// Restores the settings of a snapshot on a projector of the same model or another one. Call
/// `Read`, then `Send`. `Settings` is correct even if the work is interrupted; to complete it,
/// restore the snapshot again. `model` and `connection` must outlive it. Use it from the thread on
/// which the connection's channel may be called.
class PROJECTOR_SETTINGS_EXPORT Restoration {
 public:
  using Filter = std::function<bool(const SavedSetting&)>;

  /// Only the settings that pass `filter` take part.
  Restoration(
      const Snapshot& snapshot, const ModelSettings& model, CPjtInterface& connection,
      const Filter& filter = [](const SavedSetting&) { return true; });

  /// Reads the projector and finds out what differs.
  void Read(const Progress& progress = {});
  /// Sends the snapshot's `beforehand` in order, up to a source or mode that cannot be set. Then
  /// sends what differs, starting with the settings that others depend on, and reads it back. While
  /// it is unknown whether a change that others depend on will be carried out, nothing after it is
  /// sent. `texts` is for connections that are given the text of an entry. `keepUndo` is called
  /// each time `Undo` has grown, before the change is sent, and once more at the end; if it returns
  /// false, nothing more is sent.
  void Send(
      const SettingTexts& texts, const Progress& progress = {},
      const std::function<bool()>& keepUndo = [] { return true; });

  /// The results in the snapshot's order.
  const std::vector<RestoredSetting>& Settings() const { return settings_; }
  /// The results for the snapshot's `beforehand`; `NotReached` until `Send`.
  const std::vector<RestoredSetting>& Beforehand() const { return beforehand_; }
  /// How many of both have this outcome.
  int Count(Outcome outcome) const;

  /// A snapshot that undoes `Send`. It holds the first values read of all settings that differ,
  /// differed, or may differ since something was sent. Its `beforehand` holds the values replaced
  /// under a new source or mode, the last one first.
  Snapshot Undo(const std::string& projector, const SettingTexts& texts) const;

 private:
  using Group = std::vector<RestoredSetting*>;
  struct SendOptions;

  /// The settings for which `fit` returns true, in the snapshot's order.
  Group SettingsWhere(const std::function<bool(const RestoredSetting&)>& fit);
  void Announce(const Group& group);
  void Read(const Group& group, const Progress& progress);
  void Read(RestoredSetting& restored, const Progress& progress);
  void SendBeforehand(const SendOptions& options);
  Group SendSettings(const SendOptions& options);
  Group SendTogether(const Group& group, const SendOptions& options);
  void ConfirmEarlier(Group group, const Progress& progress);
  void SendAgain(RestoredSetting& restored, const SendOptions& options);
  void Confirm(const Group& sent, const Progress& progress);
  /// Reads again what may have changed since it was read, or records that its value is unknown.
  void RereadAffected(const Progress& progress);
  bool HasOpen() const;
  std::vector<const RestoredSetting*> SentInOrder() const;

  const ModelSettings& model_;
  CPjtInterface& connection_;
  std::vector<RestoredSetting> beforehand_;
  std::vector<RestoredSetting> settings_;
  std::vector<RestoredSetting> sentFirst_;  ///< What was sent twice, as it was the first time.
  int turns_ = 0;
};

/// A snapshot that undoes two restorations at once: `earlier` undoes the first, `later` the second.
/// Both are from `Undo`, for this model.
PROJECTOR_SETTINGS_EXPORT Snapshot UndoOfBoth(const Snapshot& earlier, const Snapshot& later,
                                              const ModelSettings& model);

}  // namespace AdvancedControl
