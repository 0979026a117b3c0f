#include "app/desktop/FleetSummary.h"

#include <algorithm>

#include "app/desktop/projectors/StateTexts.h"

FleetSummary::FleetSummary(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void FleetSummary::Show(const std::vector<ProjectorRow>& rows) {
  const auto count = [&rows](const auto& is) {
    return static_cast<int>(std::ranges::count_if(rows, is));
  };
  const auto in = [&](ProjectorGroup::Kind kind) {
    const ProjectorGroup group{kind};
    return count([&group](const ProjectorRow& row) { return group.Has(row); });
  };
  QStringList parts{tr("%n on", "projectors", count([](const ProjectorRow& row) {
                         return row.state.power == PowerState::On ||
                                row.state.power == PowerState::WarmingUp;
                       })),
                    tr("%n off", "projectors", in(ProjectorGroup::Kind::Off))};
  if (const int problems = in(ProjectorGroup::Kind::Problems); problems > 0)
    parts += tr("%n with problems", "projectors", problems);
  if (const int silent = in(ProjectorGroup::Kind::Unreachable); silent > 0)
    parts += tr("%n not reachable", "projectors", silent);
  if (const int alerts = count([](const ProjectorRow& row) { return row.hasAlert; }); alerts > 0)
    parts += tr("%n with alerts", "projectors", alerts);
  std::optional<WallTime> oldest;
  for (const ProjectorRow& row : rows) {
    if (row.state.reachability != Reachability::Answers || !row.state.answered) continue;
    oldest = std::min(oldest.value_or(*row.state.answered), *row.state.answered);
  }
  if (oldest) {
    const auto age = std::chrono::system_clock::now() - *oldest;
    parts +=
        tr("oldest answer %1").arg(StateTexts::Ago(std::chrono::floor<std::chrono::seconds>(age)));
  }
  setText(parts.join(QStringLiteral(" · ")));
}
