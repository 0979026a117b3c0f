#pragma once

#include <functional>
#include <optional>

#include <QObject>

#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/work/WorkDialog.h"

/// Carries out plans, each in a window that asks, shows how far it is, and offers to undo it.
class WorkActions : public QObject {
  Q_OBJECT

 public:
  /// `watch` must outlive this object, which the window owns.
  WorkActions(WorkDialog::NameOf nameOf, FleetWatch& watch, QWidget& window);
  ~WorkActions() override;

  using Then = std::function<void(const WorkRun&)>;

  /// Carries out a plan, after asking the user. A plan without a question begins at once. So does
  /// one for a single projector, whose window opens only if the work fails, or after a second if it
  /// consists of many commands. `then` is called at the end, also if this object is destroyed
  /// before.
  void Do(WorkPlan plan, const Then& then = {});

  /// Reads the catalog the first time.
  const SettingTexts& Texts() const;

 Q_SIGNALS:
  /// The result of the work on a single projector, for the status bar.
  void Reported(const QString& text);
  /// Work has ended. Emitted again when those that failed were tried again.
  void Finished(const WorkRun& run);

 private:
  const WorkDialog::NameOf nameOf_;
  FleetWatch& watch_;
  QWidget& window_;
  mutable std::optional<SettingTexts> texts_;  // not needed to show the window
};
