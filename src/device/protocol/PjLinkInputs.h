#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ModelData.h"
#include "device/protocol/PjLinkSession.h"

namespace AdvancedControl {

/// An input of a projector.
struct PjLinkInput {
  std::int32_t number =
      0;             ///< What reading the input source yields, as `PjLink::InputNumber` says.
  std::string name;  ///< UTF-8; the projector's own, or else its kind and place: "Digital 1".

  friend bool operator==(const PjLinkInput&, const PjLinkInput&) = default;
};

/// When an input's name is followed by its two characters, "HDMI (31)".
enum class InputCodes {
  SharedNames,  ///< If another input has the same name. For a list that shows all inputs.
  AllNames,     ///< Always, so that an input has one name whether or not the others are known.
};

/// The inputs as a model's source list, without those that it has no room for.
PROJECTOR_COMMON_EXPORT SourceList SourcesOf(const std::vector<PjLinkInput>& inputs,
                                             InputCodes codes);

/// What is known of a projector's inputs, and what to ask next to know more: the list, then the
/// name of each. Where a list has no room for all, the one that plays takes the last place.
class PROJECTOR_COMMON_EXPORT PjLinkInputs {
 public:
  /// The question to ask next; nothing when all is known.
  std::optional<PjLinkQuestion> Next() const;
  /// What became of that question. False where it has to be asked again.
  bool Take(const PjLinkTold& told);
  /// Does without the name that `Next` asks for, until `Forget`.
  void PassOver();
  bool IsListKnown() const { return !codes_.empty(); }

  /// The input that plays.
  void Play(int number) { playing_ = number; }
  const std::vector<PjLinkInput>& Known() const { return inputs_; }
  /// Takes all inputs for known that are remembered from an earlier session.
  void Remember(std::vector<PjLinkInput> inputs);
  void Forget() { *this = {}; }

  /// The question for an input's name, and the input with what came of it.
  static std::optional<PjLinkQuestion> NameOf(int number);
  static PjLinkInput Named(int number, const std::string& name);

 private:
  std::optional<std::string> NextCode() const;
  void Add(PjLinkInput input);

  std::vector<std::string> codes_;
  std::vector<PjLinkInput> inputs_;  ///< Of the first of `codes_`, then of what plays beyond them.
  int playing_ = 0;                  ///< 0 before it is known.
};

}  // namespace AdvancedControl
