#include "app/desktop/alerts/AlertRules.h"

namespace {

constexpr const char* kLamp = "alerts/lampPercent";
constexpr const char* kSilent = "alerts/silentMinutes";
constexpr const char* kProblems = "alerts/problems";
constexpr const char* kDrift = "alerts/drift";
constexpr const char* kNotifies = "alerts/notifications";
constexpr const char* kQuietFrom = "alerts/quietFrom";
constexpr const char* kQuietTo = "alerts/quietTo";
constexpr int kPercent = 100;

}  // namespace

// Quiet hours may go on past midnight.
bool AlertRules::IsQuiet(QTime now) const {
  if (!quietFrom.isValid() || quietFrom == quietTo) return false;
  return quietFrom < quietTo ? now >= quietFrom && now < quietTo
                             : now >= quietFrom || now < quietTo;
}

AlertRules AlertRules::Read(const QSettings* settings) {
  AlertRules rules;
  if (settings == nullptr) return rules;
  rules.lampPercent = settings->value(kLamp, rules.lampPercent).toInt();
  rules.silent = std::chrono::minutes(
      settings->value(kSilent, static_cast<int>(rules.silent.count())).toInt());
  rules.problems = settings->value(kProblems, rules.problems).toBool();
  rules.drift = settings->value(kDrift, rules.drift).toBool();
  rules.notifies = settings->value(kNotifies, rules.notifies).toBool();
  rules.quietFrom = settings->value(kQuietFrom).toTime();
  rules.quietTo = settings->value(kQuietTo).toTime();
  return rules;
}

void AlertRules::Write(QSettings& settings) const {
  settings.setValue(kLamp, lampPercent);
  settings.setValue(kSilent, static_cast<int>(silent.count()));
  settings.setValue(kProblems, problems);
  settings.setValue(kDrift, drift);
  settings.setValue(kNotifies, notifies);
  settings.setValue(kQuietFrom, quietFrom);
  settings.setValue(kQuietTo, quietTo);
}

std::vector<Alert> FindAlerts(const AlertRules& rules, const ProjectorRow& row, SessionTime now) {
  using Kind = Alert::Kind;
  std::vector<Alert> alerts;
  const LiveState& state = row.state;
  const bool isSilent = HealthOf(row) == Health::Unreachable;
  if (isSilent && rules.silent.count() > 0 && now - state.steadySince >= rules.silent)
    alerts.push_back({row.id, Kind::Silent});
  const int hours = LampHoursOf(state);
  const int rated = row.profile.ratedLampHours;
  if (rules.lampPercent > 0 && rated > 0 && hours * kPercent >= rated * rules.lampPercent)
    alerts.push_back({row.id, Kind::Lamp});
  if (rules.drift && state.drift.value_or(0) > 0) alerts.push_back({row.id, Kind::Drift});
  if (!rules.problems || !state.problems) return alerts;
  for (std::size_t part = 0; part < state.problems->size(); ++part) {
    if ((*state.problems)[part] != ProblemGrade::None)
      alerts.push_back({row.id, Kind::Problem, static_cast<ProjectorPart>(part)});
  }
  return alerts;
}
