#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "device/CPjtInterface.h"
#include "settings/PageSets.h"
#include "settings/RowUse.h"

namespace AdvancedControl {

/// One setting of a model, for programs without a window.
struct PROJECTOR_SETTINGS_EXPORT ModelSetting {
  enum class Kind : std::uint8_t {
    Number,  ///< Any whole number of `range`.
    Choice,  ///< The value of one of `entries`; switches are choices too.
    State,   ///< What the projector is doing now; some are switches as well.
    Action,  ///< Makes the projector do something; neither read nor changed.
  };

  std::string_view key;  ///< Unique within a model, and the same on every model that has it.
  int caption = 0;       ///< Number in the caption category; 0 if the setting only has a `key`.
  int tab = 0;           ///< Caption number of the tab that it is on.
  Kind kind = Kind::State;
  int bias = 0;                    ///< Shown value = device value − `bias`.
  std::optional<Range> range{};    ///< Device values; none if only the projector limits it.
  std::vector<ListEntry> entries;  ///< In the list's order; names may point into the model's data.
  std::optional<int> placeholder{};  ///< Value of an entry that is shown but never sent.
  int otherwise = 0;            ///< Text for other values of a state, with the value as its insert.
  std::optional<Call> reset{};  ///< Resets it to the projector's default.
  OfSource of = OfSource::None;  ///< Kept for each input source; can be read and changed for any.
  bool ofCurrentSourceOnly =
      false;  ///< The same, but can be read and changed only for the present source.
  bool readable = false;
  bool changeable = false;
  const PageRow* row = nullptr;  ///< Never null in a list of settings.

  /// Whether a value read earlier may be sent again.
  bool Restorable() const { return readable && changeable && kind != Kind::State; }
  bool IsPerSource() const { return of != OfSource::None || ofCurrentSourceOnly; }
  /// Whether changing it switches the projector's input source.
  bool SelectsInput() const;
  /// Whether it is the power state, with or without buttons that switch it.
  bool IsPower() const;
  /// Whether it has no setter and is therefore changed step by step.
  bool IsStepped() const;
  /// Whether the setting allows this device value.
  bool Allows(int value) const;
};

/// A setting to be read, and the input source that it is read for.
struct SourcedSetting {
  const ModelSetting* setting = nullptr;  ///< Never null.
  std::optional<int> source{};  ///< Nothing if it belongs to no source or its source is unknown.
};

/// The keys of all settings of all models, with duplicates. Any thread.
PROJECTOR_SETTINGS_EXPORT std::vector<std::string_view> AllKeys();

/// All settings of a model in the order of its pages; those of a pop-up follow those of the page
/// that opens it. A model of an unknown page set has those of the status page, and power, input,
/// blank, mute and freeze, which every projector has. Call it from the thread on which the
/// connection's channel may be called.
class PROJECTOR_SETTINGS_EXPORT ModelSettings {
 public:
  explicit ModelSettings(ModelData model);

  const ModelData& Model() const { return *model_; }
  std::span<const ModelSetting> All() const { return settings_; }
  /// The setting of this key, or null.
  const ModelSetting* Find(std::string_view key) const;

  /// The setting that chooses the input source. Every model has one.
  const ModelSetting& Input() const;
  /// Whether a setting is kept for this source; true for any source if the model lists no inputs.
  bool HasSource(const ModelSetting& setting, int source) const;
  /// The source that a per-source setting belongs to now; nothing for any other setting, or if the
  /// projector does not report it.
  std::optional<int> PresentSource(CPjtInterface& projector, const ModelSetting& setting) const;
  /// Announces the next reads to the connection, in this order, so that it may send them at once.
  void Announce(CPjtInterface& projector, std::span<const SourcedSetting> settings) const;
  /// The same for the sources that the settings belong to now. Each source is asked for once, and
  /// is valid until something is changed.
  std::vector<SourcedSetting> PrepareReads(CPjtInterface& projector,
                                           std::span<const ModelSetting* const> settings) const;
  /// The device value for `source`, or else for the present source; nothing if the projector
  /// refuses or does not answer.
  std::optional<int> Read(CPjtInterface& projector, const ModelSetting& setting,
                          std::optional<int> source = {}) const;
  /// Sends a device value that the setting allows. A setter without a result counts as accepted;
  /// read the setting to find out whether it has changed.
  Sent Change(CPjtInterface& projector, const ModelSetting& setting, int value,
              const Sending& how = {}) const;

 private:
  void Add(const PageTable& table, int tab);

  std::shared_ptr<const ModelData> model_;
  std::vector<ModelSetting> settings_;
};

}  // namespace AdvancedControl
