#pragma once

#include <functional>

#include <QDialog>

#include "snapshots/SettingTexts.h"
#include "snapshots/Snapshot.h"

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QTreeWidget;

/// Shows the presets and what is in them, renames and removes them.
class PresetManager : public QDialog {
  Q_OBJECT

 public:
  struct Parts {
    /// The names of the projectors that should be like a preset.
    std::function<QStringList(const QString& preset)> users;
    /// The settings of the model that a preset was made from.
    std::function<ModelSettings(const Snapshot& preset)> model;
    // A text as a result is an error.
    std::function<QString(const QString& from, const QString& to)> rename;
    std::function<QString(const QString& preset)> remove;
    const SettingTexts& texts;
  };

  PresetManager(Parts parts, QWidget* parent);

  /// Shows the presets that there are now.
  void Fill();

 private:
  void MakeLayout();
  QString Current() const;
  void ShowCurrent();
  void TakeName(QListWidgetItem& item);
  void AskToRemove();

  const Parts parts_;
  QListWidget* list_;
  QLabel* users_;
  QTreeWidget* tree_;
  QPushButton* rename_ = nullptr;
  QPushButton* remove_ = nullptr;
};
