#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "device/CPjtInterface.h"
#include "settings/PageSets.h"
#include "settings/Rows.h"

/// One setting of a model, as a program without a window sees it.
struct ModelSetting {
  enum class Kind : std::uint8_t {
    Number,  ///< Any whole number of `range`.
    Choice,  ///< The value of one of `entries`; switches are choices too.
    State,   ///< Only read.
    Action,  ///< Neither read nor changed: the projector does something.
  };

  std::string_view key;  ///< Unique within a model, and the same on every model that has it.
  int caption = 0;       ///< Number in the caption category; 0 where `key` is all that there is.
  int tab = 0;           ///< Caption number of the tab that it stands on.
  Kind kind = Kind::State;
  int bias = 0;                    ///< Shown value = device value − `bias`.
  std::optional<Range> range{};    ///< Device values; none where only the projector bounds it.
  std::vector<ListEntry> entries;  ///< In the list's order; names may point into the model's data.
  std::optional<PjtOperation> reset{};  ///< Puts it back to the projector's own standard.
  bool perSource = false;  ///< Belongs to the input source that plays while it is read or changed.
  bool readable = false;
  bool changeable = false;
  const PageRow* row = nullptr;  ///< Never null in a list of settings.

  /// Whether a value read earlier may be sent again.
  bool Restorable() const { return readable && changeable; }
  /// Whether the row takes this device value.
  bool Allows(int value) const;
};

/// All settings of a model in the order of its pages, the pop-ups' behind those of the page that
/// opens them.
class ModelSettings {
 public:
  explicit ModelSettings(ModelData model);

  const ModelData& Model() const { return *model_; }
  std::span<const ModelSetting> All() const { return settings_; }
  /// The setting of this key, or null.
  const ModelSetting* Find(std::string_view key) const;

  /// Tells the connection what will be read next, in this order, so that it may ask for all at
  /// once.
  void Announce(CPjtInterface& projector, std::span<const ModelSetting* const> settings) const;
  /// The device value; nothing where the projector refuses it or does not answer.
  std::optional<int> Read(CPjtInterface& projector, const ModelSetting& setting) const;
  /// Sends a device value that the setting allows. `text` is the entry's text, which some
  /// connections are told. False where the projector refuses it; a setter without a result never
  /// does, so that only reading tells what came of it.
  bool Change(CPjtInterface& projector, const ModelSetting& setting, int value,
              std::string_view text = {}) const;

 private:
  void Add(const PageTable& table, int tab);

  std::shared_ptr<const ModelData> model_;
  std::vector<ModelSetting> settings_;
};
