#pragma once

#include <functional>
#include <vector>

#include <QObject>

#include "app/desktop/projectors/ProjectorRow.h"

class FleetWatch;
class ProfileDocument;
class ProfileHistory;
class QAction;
class QMenu;
class WorkActions;
class WorkRun;

/// Menu actions for presets: making one from a projector's present settings, putting one on the
/// selected projectors, and saying which one projectors should be like.
class PresetActions : public QObject {
  Q_OBJECT

 public:
  using Rows = std::vector<const ProjectorRow*>;

  struct Parts {
    std::function<Rows()> selected;
    FleetWatch& watch;
    WorkActions& work;
    ProfileDocument& document;
    ProfileHistory& edits;
    QWidget& window;
  };

  /// The window owns it, and it must not outlive the others.
  explicit PresetActions(Parts parts);

  /// With a menu.
  QAction* Presets() const { return presets_; }
  void Update(bool any);

 private:
  void Fill(QMenu& menu);
  void AskForName();
  void Save(const QString& name, const WorkRun& run);
  void Apply(const QString& name);
  void SetWanted(const QString& name);
  /// Compares the selected projectors with what they should be, or puts that back.
  void UseWanted(bool putsBack);

  const Parts parts_;
  QAction* presets_;
};
