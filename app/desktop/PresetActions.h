#pragma once

#include <functional>
#include <vector>

#include <QObject>

#include "app/desktop/work/ComparisonDialog.h"

class DriftCheck;
class FleetWatch;
class PresetEdits;
class ProfileDocument;
class ProfileHistory;
class QAction;
class QMenu;
class WorkActions;

/// Menu actions for presets: making one from a projector's present settings, applying one to the
/// selected projectors, and choosing the one that projectors should have.
class PresetActions : public QObject {
  Q_OBJECT

 public:
  using Rows = std::vector<const ProjectorRow*>;

  struct Parts {
    std::function<Rows()> selected;
    std::function<QString()> tag;  ///< The one whose projectors are shown; empty for none.
    FleetWatch& watch;
    WorkActions& work;
    ProfileDocument& document;
    ProfileHistory& edits;
    QWidget& window;
  };

  /// The window owns it, and it must not outlive the others.
  explicit PresetActions(Parts parts);

  /// The action that opens the menu of presets.
  QAction* Presets() const { return presets_; }
  void Update(bool any);
  DriftCheck& Drift() const { return *drift_; }

 Q_SIGNALS:
  /// A preset was saved, perhaps in place of another one.
  void Saved();

 private:
  void Fill(QMenu& menu);
  /// Makes a preset of the selected projector's settings.
  void Take();
  void AskWhatToSave(Snapshot taken, const ModelData& model);
  void Apply(const QString& name);
  void Preview(Comparison comparison);
  void FillWanted(QMenu& menu, const std::function<void(const QString& name)>& set);
  void SetWanted(const QString& name);
  void SetWantedOfTag(const QString& tag, const QString& name);
  /// Those of the selected projectors that have a preset that they should match. If there are none,
  /// tells the user and returns none.
  Comparison WithWanted();
  void CompareWithWanted();
  void PutBack();

  const Parts parts_;
  QAction* presets_;
  DriftCheck* drift_;
  PresetEdits* edits_;
};
