#pragma once

#include <chrono>
#include <vector>

#include <QSettings>
#include <QString>
#include <QTime>

#include "app/desktop/projectors/ProjectorRow.h"

/// When alerts are raised, and when the desktop shows them.
struct AlertRules {
  int lampPercent = 90;            ///< Of the rated hours; 0 for never.
  std::chrono::minutes silent{5};  ///< 0 for never.
  bool problems = true;            ///< Of fan, lamp, temperature, cover, filter and others.
  bool drift = true;               ///< Settings that differ from what they should be.
  bool notifies = true;            ///< On the desktop, too.
  QTime quietFrom{}, quietTo{};    ///< Quiet hours, without notifications; equal for none.

  bool IsQuiet(QTime now) const;
  /// `settings` may be null.
  static AlertRules Read(const QSettings* settings);
  void Write(QSettings& settings) const;
};

/// A state of a projector that needs attention.
struct Alert {
  enum class Kind : std::uint8_t { Silent, Lamp, Drift, Problem };

  std::string id;
  Kind kind = Kind::Problem;
  ProjectorPart part = ProjectorPart::Other;  ///< Of a problem.

  // NOLINTNEXTLINE(modernize-use-nullptr): what the compiler makes compares with 0
  friend auto operator<=>(const Alert&, const Alert&) = default;
};

/// The alerts that the rules find in a projector at the given time. A projector is not silent while
/// the computer sleeps and nobody asks it.
std::vector<Alert> FindAlerts(const AlertRules& rules, const ProjectorRow& row, SessionTime now);
