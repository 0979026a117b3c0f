#pragma once

#include <functional>
#include <memory>

#include <QDialog>

#include "snapshots/SettingTexts.h"
#include "snapshots/Snapshot.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// Chooses which of a projector's present settings make a preset, and its name. The settings are
/// listed by page.
class PresetDialog : public QDialog {
  Q_OBJECT

 public:
  /// `taken` has the present settings of a projector of this model. All are checked at first.
  PresetDialog(std::shared_ptr<const Snapshot> taken, const ModelSettings& model,
               const SettingTexts& texts, QWidget* parent);

  QString Name() const;
  /// The checked settings.
  Snapshot Chosen() const;

 private:
  void MakeLayout();
  void Fill(const ModelSettings& model, const SettingTexts& texts);
  /// Checks the settings of these pages and no others.
  void CheckPages(const std::function<bool(const QTreeWidgetItem*)>& isChecked);
  void Update();

  const std::shared_ptr<const Snapshot> taken_;
  QLineEdit* name_;
  QTreeWidget* tree_;
  QLabel* remark_;
  QPushButton* save_ = nullptr;
};
