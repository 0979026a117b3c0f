#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <QObject>

#include "app/desktop/projectors/ProjectorRow.h"

class FleetWatch;
class QAction;
class QWidget;
class WorkActions;
class WorkRun;

/// Menu actions that save the settings of the selected projectors in files, compare them with a
/// file, and restore them from a file, several projectors at once. Asks for files, and reports
/// errors.
class SettingsActions : public QObject {
  Q_OBJECT

 public:
  using Rows = std::vector<ProjectorRow>;

  struct Parts {
    std::function<std::vector<const ProjectorRow*>()> selected;
    FleetWatch& watch;
    WorkActions& work;
    QWidget& window;
  };

  /// The window owns it, and it must not outlive the others.
  explicit SettingsActions(Parts parts);

  QAction* Save() const { return save_; }
  QAction* Compare() const { return compare_; }
  QAction* Apply() const { return apply_; }

  /// Enables the actions if projectors are selected.
  void Update(bool any);

  /// Saves the settings of each projector: those of a single one in the file `path`, those of
  /// several in files in the folder `path`, named after the projectors, in place of what was saved
  /// there of them before.
  void SaveTo(const QString& path, const Rows& rows);
  /// Compares projectors with a file; `applies` lets the user send what differs. What is replaced
  /// is kept in a file beside it.
  void OpenFile(const QString& path, const Rows& rows, bool applies);

 private:
  /// The saving under way, and its files.
  struct Saving {
    QString path;
    std::map<std::string, std::string> names{};  ///< Of the projectors by identity.
    std::set<std::string> saved{};               ///< Identities.
  };

  /// Copies, because the list may change while a question is open.
  Rows Selected() const;
  void AskWhereToSave();
  void AskForSettings(bool applies);
  void Write(Saving& saving, const WorkRun& run);
  void KeepUndo(const QString& path, const WorkRun& run);

  const Parts parts_;
  QAction* save_;
  QAction* compare_;
  QAction* apply_;
};
