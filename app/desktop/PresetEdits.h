#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

#include "snapshots/SettingTexts.h"
#include "snapshots/Snapshot.h"

class PresetManager;
class ProfileDocument;
class ProfileHistory;
class QWidget;
class WorkActions;

/// Renames and removes presets. The projectors that should be like such a preset change with it,
/// and all of it can be undone.
class PresetEdits : public QObject {
  Q_OBJECT

 public:
  struct Parts {
    ProfileDocument& document;
    ProfileHistory& history;
    const WorkActions& work;
    QWidget& window;
  };

  /// The window owns it, and it must not outlive the others.
  explicit PresetEdits(const Parts& parts);

  /// Opens the window of the presets.
  void Open();

 private:
  /// The names of the projectors that should be like a preset.
  QStringList UsersOf(const QString& preset) const;
  ModelSettings ModelOf(const Snapshot& preset) const;
  QString Rename(const QString& from, const QString& to);
  QString Remove(const QString& preset);

  const Parts parts_;
  QPointer<PresetManager> manager_;
};
