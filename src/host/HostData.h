#pragma once

#include <optional>

#include "Namespace.h"
#include "device/CPjtInterface.h"
#include "device/ModelData.h"
#include "device/ModelDataIntake.h"

namespace AdvancedControl {

/// What a host has passed to its dialog: the model and the connection in use, and those for the
/// dialog's next creation. If the host names no inputs, those that the projector reports take their
/// place. User-interface thread only.
class HostData {
 public:
  /// `projector` gets the connections, and must outlive this object.
  explicit HostData(CPjtInterface& projector) : projector_(projector) {}

  /// The model in use.
  const ModelData& Model() const { return model_; }

  /// The model for the next creation of the dialog, to be filled by the host. It is the one in use
  /// unless the dialog `keepsModel`, because its pages were made for it.
  ModelData& ModelToFill(bool keepsModel);
  /// The connection that belongs to the model filled last.
  void TakeConnection(const ConnectionData& connection);
  /// Begins to use what was passed for the next creation.
  void UseNext();

  void ReplaceSources(const SourceList& sources);
  /// Inputs that the projector has newly reported, if the host names none.
  std::optional<SourceList> NewReportedInputs() const;
  /// Uses such inputs.
  void UseReported(const SourceList& inputs);
  /// Whether the inputs in use are the host's own.
  bool NamesInputs() const { return model_.MySourceList.Size() > 0 && !reportedInputs_; }

 private:
  struct Intake {
    ModelData model;
    std::optional<ConnectionData> connection;  ///< Nothing if only the model was passed.
  };

  CPjtInterface& projector_;
  ModelData model_;
  std::optional<Intake> next_;
  std::optional<SourceList> reportedInputs_;  // the inputs in use
};

}  // namespace AdvancedControl
