#include "host/HostData.h"

#include <utility>

namespace AdvancedControl {

ModelData& HostData::ModelToFill(bool keepsModel) {
  if (keepsModel) {
    if (!next_) next_.emplace(Intake{.model = model_, .connection = {}});
    return next_->model;
  }
  UseNext();
  return model_;
}

void HostData::TakeConnection(const ConnectionData& connection) {
  if (next_) {
    next_->connection = connection;
    return;
  }
  projector_.CopyData(connection.Kind, connection.Number, connection.Parameter,
                      connection.Text1.c_str(), connection.Text2.c_str());
}

void HostData::UseNext() {
  if (!next_) return;
  const Intake given = *std::exchange(next_, std::nullopt);
  model_ = given.model;
  if (given.connection) TakeConnection(*given.connection);
}

void HostData::ReplaceSources(const SourceList& sources) {
  if (next_) next_->model.MySourceList = sources;
  model_.MySourceList = sources;
}

std::optional<SourceList> HostData::NewReportedInputs() const {
  const SourceList& known = model_.MySourceList;
  if (known.Size() > 0 && known != reportedInputs_) return std::nullopt;
  auto reported = projector_.Inputs();
  return reported == known ? std::nullopt : reported;
}

void HostData::UseReported(const SourceList& inputs) {
  reportedInputs_ = inputs;
  model_.MySourceList = inputs;
}

}  // namespace AdvancedControl
