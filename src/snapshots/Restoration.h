#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ProjectorSettingsExport.h"
#include "snapshots/Snapshot.h"

inline namespace AdvancedControl {

/// What has become of one saved setting.
enum class Outcome : std::uint8_t {
  NotReached,   ///< Nothing was sent for it: the work was cut off before.
  AlreadySo,    ///< The projector has this value without being told.
  Differs,      ///< It has another one, and was not told yet.
  Changed,      ///< Told, and read back so.
  Pending,      ///< Told and accepted, but not so yet when it was read back.
  Refused,      ///< Told in vain, or the projector does not even tell its value.
  Busy,         ///< Refused for now: the projector switches, warms up, cools down or stands by.
  Unconfirmed,  ///< Told, or what was told may have changed it too; what it is now is not known.
  Unknown,      ///< The model does not have the setting.
  NotOffered,   ///< The model has it, but the projector says that it does not.
  NotSettable,  ///< The model has it, but it is not one to put back.
  NotAllowed,   ///< The model does not take this value, or not for this source.
};

struct RestoredSetting {
  SavedSetting saved;
  const ModelSetting* setting = nullptr;  ///< Null for one that the model does not have.
  bool isBeforehand = false;
  Outcome outcome = Outcome::NotReached;
  std::optional<int> first{};   ///< What the projector had at first, where it told it.
  std::optional<int> before{};  ///< What it had last before it was told.
  std::optional<int> now{};     ///< What it has after being told; nothing while unconfirmed.
  int turn = 0;   ///< Its place among all that are told, from 1 on; 0 for one that is not.
  int asOf = -1;  ///< How many had been told when it was read last.
  /// What it comes to when it was told and is read back different.
  Outcome otherwise = Outcome::Refused;

  /// Whether it was told and nobody knows if the projector will still carry it out.
  bool IsOpen() const { return otherwise == Outcome::Pending || otherwise == Outcome::Unconfirmed; }
};

/// Puts the settings of a snapshot back on a projector, of the same model or another. First `Read`,
/// then `Send`; whenever it ends, `Settings` tells the truth, and doing it all again completes it.
/// `model` and `connection` outlive it.
class PROJECTOR_SETTINGS_EXPORT Restoration {
 public:
  using Filter = std::function<bool(const SavedSetting&)>;

  /// Only the settings that pass `filter` take part.
  Restoration(
      const Snapshot& snapshot, const ModelSettings& model, CPjtInterface& connection,
      const Filter& filter = [](const SavedSetting&) { return true; });

  /// Reads the projector and tells what differs.
  void Read(const Progress& progress = {});
  /// Sends the snapshot's `beforehand`, in its order and up to a source or mode that cannot be set;
  /// then what differs, what others depend on first; and reads it back. Nothing is sent after what
  /// others depend on while nobody knows whether that will still be carried out. Texts are for
  /// connections that are told them. `keepUndo` is called whenever `Undo` has become more, before
  /// that is sent, and once more when all is known: where it says no, no more is sent.
  void Send(
      const SettingTexts& texts, const Progress& progress = {},
      const std::function<bool()>& keepUndo = [] { return true; });

  /// In the snapshot's order.
  const std::vector<RestoredSetting>& Settings() const { return settings_; }
  /// The snapshot's `beforehand`; not reached before `Send`.
  const std::vector<RestoredSetting>& Beforehand() const { return beforehand_; }
  /// How many of both have come to this.
  int Count(Outcome outcome) const;

  /// What the projector had at first of everything that differs or differed, or may since something
  /// was told; and beforehand, from the last one back, what each replaced that was sent under a new
  /// source or mode. Restoring this undoes `Send`.
  Snapshot Undo(const std::string& projector, const SettingTexts& texts) const;

 private:
  using Group = std::vector<RestoredSetting*>;
  struct Way;

  /// Those that fit, in the snapshot's order.
  Group Those(const std::function<bool(const RestoredSetting&)>& fit);
  void Announce(const Group& group);
  void Read(const Group& group, const Progress& progress);
  void Read(RestoredSetting& restored, const Progress& progress);
  void SendBeforehand(const Way& way);
  Group SendSettings(const Way& way);
  Group SendTogether(const Group& group, const Way& way);
  void Confirm(const Group& sent, const Progress& progress);
  /// Reads again what may have changed since it was read, or tells that it is not known.
  void Settle(const Progress& progress);
  bool HasOpen() const;
  std::vector<const RestoredSetting*> Told() const;

  const ModelSettings& model_;
  CPjtInterface& connection_;
  std::vector<RestoredSetting> beforehand_;
  std::vector<RestoredSetting> settings_;
  int turns_ = 0;
};

}  // namespace AdvancedControl
