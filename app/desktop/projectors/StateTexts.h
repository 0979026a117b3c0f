#pragma once

#include <chrono>

#include <QCoreApplication>
#include <QIcon>
#include <QString>

#include "app/desktop/projectors/ProjectorRow.h"
#include "fleet/StateChange.h"

/// The state of a projector in words, in the program's language. A text is empty if nothing is
/// known.
class StateTexts {
  Q_DECLARE_TR_FUNCTIONS(StateTexts)

 public:
  /// "OK", "Problem", "No answer" and so on.
  static QString State(const ProjectorRow& row);
  static QString Power(const LiveState& state);
  static QString Power(PowerState power);
  /// The name of the source; without one, that which the model has for its number, or the number.
  static QString Source(const LiveState& state,
                        const std::shared_ptr<const ProfileModel>& model = {});
  /// "Lamp · Filter (warning)"
  static QString Problems(const LiveState& state);
  /// "1234 h"
  static QString LampHours(const LiveState& state);
  static QString Hours(int hours);
  /// "3 differ", or "as it should be".
  static QString Drift(const LiveState& state);
  /// "12 s ago"
  static QString Ago(std::chrono::seconds age);
  /// How long ago the projector answered last.
  static QString Answered(const LiveState& state, WallTime now);
  /// "Power: Standby → On"
  static QString Change(const StateChange& change,
                        const std::shared_ptr<const ProfileModel>& model);
  static QString Part(ProjectorPart part);

  /// An icon with its own shape and color: either is enough to tell them apart.
  static QIcon Icon(Health health);
};
