#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ModelData.h"
#include "device/ProjectorChannel.h"

namespace AdvancedControl {

/// An input as PJLink describes it.
struct ServedInput {
  std::string code{};       ///< Two characters: kind 1..6, then 1..9 or, in class 2, A..Z.
  std::int16_t source = 0;  ///< Its input source number on the projector.
  std::string name{};       ///< UTF-8, up to 128 bytes.
};

/// Maps the sources of a model to the digital inputs first, then to the network inputs. Any thread.
PROJECTOR_COMMON_EXPORT std::vector<ServedInput> InputsOf(const SourceList& sources);

/// A projector as PJLink describes it.
struct ServedProjector {
  int protocolClass = 2;  ///< 1 or 2.
  std::vector<ServedInput> inputs{};
  /// The six digits of `ERST`; empty to derive them from the projector's error status.
  std::string errors{};
  /// Hours of the second and further lamps.
  std::vector<int> moreLampHours{};
  /// Answers of the commands that return a text; UTF-8, cut to the length that the standard allows.
  std::map<std::string, std::string, std::less<>> texts{
      {"NAME", "Simulated projector"},
      {"INF1", "Advanced Control"},
      {"INF2", "Simulation"},
      {"INFO", ""},
      {"SNUM", "1"},
      {"SVER", "1.0"},
      {"IRES", "1024x768"},
      {"RRES", "1024x768"},
      {"RLMP", ""},
      {"RFIL", ""},
  };
};

/// Answers PJLink requests on behalf of a projector. Use it on the thread on which the projector's
/// channel may be called.
class PROJECTOR_COMMON_EXPORT PjLinkResponder {
 public:
  PjLinkResponder(std::shared_ptr<ProjectorChannel> projector, ServedProjector served);
  ~PjLinkResponder();

  /// Executes the request `text`, without its end of line, and returns the reply, also without it;
  /// nothing if `text` is not a request.
  std::optional<std::string> Answer(std::string_view text);

  /// Replaces `ServedProjector::errors`.
  void SetErrors(std::string_view digits) { served_.errors = digits; }

 private:
  struct Command;
  static const Command kCommands[];

  template <typename Format>
  std::string Report(std::uint16_t code, Format format);
  std::string Change(const PjtCommand& command);
  bool IsOn();
  std::string Perform(char protocolClass, std::string_view name, std::string_view parameter);
  std::optional<std::string> Text(char protocolClass, std::string_view name) const;

  std::string Power();
  std::string SetPower(std::string_view parameter);
  std::string Input();
  std::string SetInput(std::string_view code);
  std::string Muted();
  std::string SetMuted(std::string_view parameter);
  std::string Errors();
  std::string Lamp();
  std::string Inputs();
  std::string ProtocolClass();
  std::string Frozen();
  std::string SetFrozen(std::string_view parameter);
  std::string StepVolume(std::string_view parameter);
  std::string Filter();
  std::string InputName(std::string_view code) const;

  const std::shared_ptr<ProjectorChannel> projector_;
  ServedProjector served_;
};

}  // namespace AdvancedControl
