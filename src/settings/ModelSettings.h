#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ProjectorSettingsExport.h"
#include "device/CPjtInterface.h"
#include "settings/PageSets.h"
#include "settings/RowUse.h"

inline namespace AdvancedControl {

/// One setting of a model, as a program without a window sees it.
struct PROJECTOR_SETTINGS_EXPORT ModelSetting {
  enum class Kind : std::uint8_t {
    Number,  ///< Any whole number of `range`.
    Choice,  ///< The value of one of `entries`; switches are choices too.
    State,   ///< What the projector does now; some are switches too.
    Action,  ///< Neither read nor changed: the projector does something.
  };

  std::string_view key;  ///< Unique within a model, and the same on every model that has it.
  int caption = 0;       ///< Number in the caption category; 0 where `key` is all that there is.
  int tab = 0;           ///< Caption number of the tab that it stands on.
  Kind kind = Kind::State;
  int bias = 0;                    ///< Shown value = device value − `bias`.
  std::optional<Range> range{};    ///< Device values; none where only the projector bounds it.
  std::vector<ListEntry> entries;  ///< In the list's order; names may point into the model's data.
  std::optional<int> placeholder{};  ///< Value of an entry that is shown, and never sent.
  int otherwise = 0;                 ///< Text of a state's other values, which are its insert.
  std::optional<Call> reset{};       ///< Puts it back to the projector's own standard.
  OfSource of = OfSource::None;      ///< Kept for each input source; read and changed for any.
  bool ofCurrentSourceOnly = false;  ///< The same, but of the source that plays at that time.
  bool readable = false;
  bool changeable = false;
  const PageRow* row = nullptr;  ///< Never null in a list of settings.

  /// Whether a value read earlier may be sent again.
  bool Restorable() const { return readable && changeable && kind != Kind::State; }
  bool IsPerSource() const { return of != OfSource::None || ofCurrentSourceOnly; }
  /// Whether a change of it changes the projector's input source.
  bool SelectsInput() const;
  /// Whether it is changed step by step, as it has no setter.
  bool IsStepped() const;
  /// Whether the row takes this device value.
  bool Allows(int value) const;
};

/// A setting to be read, and the input source that it is read for.
struct SourcedSetting {
  const ModelSetting* setting = nullptr;  ///< Never null.
  std::optional<int> source{};  ///< Nothing for one that belongs to none, or while unknown.
};

/// The keys of every model's settings; some stand here more than once.
PROJECTOR_SETTINGS_EXPORT std::vector<std::string_view> AllKeys();

/// All settings of a model in the order of its pages, the pop-ups' behind those of the page that
/// opens them.
class PROJECTOR_SETTINGS_EXPORT ModelSettings {
 public:
  explicit ModelSettings(ModelData model);

  const ModelData& Model() const { return *model_; }
  std::span<const ModelSetting> All() const { return settings_; }
  /// The setting of this key, or null.
  const ModelSetting* Find(std::string_view key) const;

  /// The setting that chooses the input source, or null.
  const ModelSetting* Input() const;
  /// Whether a setting is kept for this source. Any counts where the model does not tell its
  /// inputs.
  bool HasSource(const ModelSetting& setting, int source) const;
  /// The source that a setting kept for each of them belongs to now; nothing for any other, or
  /// while the projector does not say.
  std::optional<int> PresentSource(CPjtInterface& projector, const ModelSetting& setting) const;
  /// Tells the connection what will be read next, in this order, so that it may ask for all at
  /// once.
  void Announce(CPjtInterface& projector, std::span<const SourcedSetting> settings) const;
  /// The same for the sources that the settings belong to now. Each is asked for once, and holds as
  /// long as nothing is changed.
  std::vector<SourcedSetting> PrepareReads(CPjtInterface& projector,
                                           std::span<const ModelSetting* const> settings) const;
  /// The device value, of `source` or else the present one; nothing where the projector refuses it
  /// or does not answer.
  std::optional<int> Read(CPjtInterface& projector, const ModelSetting& setting,
                          std::optional<int> source = {}) const;
  /// Sends a device value that the setting allows. False where the projector refuses it; a setter
  /// without a result never does, so that only reading tells what came of it.
  bool Change(CPjtInterface& projector, const ModelSetting& setting, int value,
              const Sending& how = {}) const;

 private:
  void Add(const PageTable& table, int tab);

  std::shared_ptr<const ModelData> model_;
  std::vector<ModelSetting> settings_;
};

}  // namespace AdvancedControl
