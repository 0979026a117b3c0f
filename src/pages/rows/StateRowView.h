#pragma once

#include "Namespace.h"
#include "pages/rows/RowView.h"

class QLabel;

namespace AdvancedControl {

/// A state of the projector, shown as a text, or as a dash if it cannot be read. The page handles
/// actions that change the state.
class StateRowView final : public RowView {
 public:
  StateRowView(const PageTable& table, const PageRow& row, RowHost& host)
      : RowView(table, row, host), row_(std::get<StateRow>(row)) {}

  void Bind() override;
  void Read(Source source) override;
  QString Text() const override;

 private:
  QString TextOfState(int value) const;

  const StateRow& row_;
  QLabel* label_ = nullptr;
};

}  // namespace AdvancedControl
