#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
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
  std::int32_t number = 0;  ///< The input source number, see `PjLink::InputNumber`.
  std::string name;  ///< UTF-8; reported by the projector, or else kind and number: "Digital 1".

  friend bool operator==(const PjLinkInput&, const PjLinkInput&) = default;
};

/// When an input's name is followed by its code: "HDMI (31)".
enum class InputCodes {
  SharedNames,  ///< If another input has the same name. For a list that shows all inputs.
  AllNames,     ///< Always, so that an input has one name whether or not the others are known.
};

/// The inputs as a model's source list, without those beyond its capacity. Any thread.
PROJECTOR_COMMON_EXPORT SourceList SourcesOf(const std::vector<PjLinkInput>& inputs,
                                             InputCodes codes);

/// What is known of a projector's inputs, and the next question to ask: first for the list, then
/// for the name of each. If there are more inputs than a list can hold, the present input takes the
/// last place. Use from one thread at a time.
class PROJECTOR_COMMON_EXPORT PjLinkInputs {
 public:
  /// The question to ask next; nothing if everything is known.
  std::optional<PjLinkQuestion> Next() const;
  /// Takes the result of that question. False if it has to be repeated.
  bool Take(const PjLinkResult& result);
  /// Skips the name that `Next` asks for, until `AskSkippedAgain` or `Forget`: until then the input
  /// is named by kind and number. Does nothing if `Next` asks for no name.
  void SkipName();
  bool IsAnySkipped() const { return !skipped_.empty(); }
  /// Lets `Next` ask for the skipped names again. All other names stay.
  void AskSkippedAgain() { again_ = skipped_.size(); }
  bool IsListKnown() const { return !codes_.empty(); }
  /// Asks everything that is not known; `ask` returns the result of a question. What it could not
  /// learn is named by kind and number, or missing.
  struct Asked {
    bool isComplete = true;
    bool isLost = false;  ///< An answer got lost.
  };
  Asked AskForAll(const std::function<PjLinkResult(const PjLinkQuestion&)>& ask);

  /// Sets the present input.
  void SetPresent(int number) { present_ = number; }
  const std::vector<PjLinkInput>& Known() const { return inputs_; }
  /// Uses the inputs from an earlier session, which must be complete.
  void Remember(std::vector<PjLinkInput> inputs);
  void Forget() { *this = {}; }

  /// The question for an input's name, if there is an input of this number; and the input with the
  /// name in its answer.
  static std::optional<PjLinkQuestion> NameOf(int number);
  static PjLinkInput Named(int number, const std::string& name);

 private:
  std::optional<std::string> NextCode() const;
  void NameNext(const std::string& name);

  std::vector<std::string> codes_;
  std::vector<PjLinkInput>
      inputs_;  ///< In the order of `codes_`, then the present input if it is beyond them.
  std::vector<std::int32_t> skipped_;  ///< The numbers of those whose names were skipped.
  std::size_t again_ = 0;              ///< So many of them, from the first, are asked for again.
  int present_ = 0;                    ///< 0 if unknown.
};

}  // namespace AdvancedControl
