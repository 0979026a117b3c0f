#pragma once

#include <QDialog>

#include "app/desktop/alerts/AlertRules.h"

class CComboBox;
class QCheckBox;
class QSettings;
class QSpinBox;
class QTimeEdit;

/// Language, how often projectors are asked, and when alerts are raised. Written to the settings
/// when it is accepted.
class Preferences : public QDialog {
  Q_OBJECT

 public:
  /// `settings` must outlive it.
  explicit Preferences(QSettings& settings, QWidget* parent = nullptr);

  /// Seconds between two visits to a projector. `settings` may be null.
  static int Interval(const QSettings* settings);
  /// The identifier of the language that the user chose; 0 for that of the system.
  static int Language(const QSettings& settings);

  void accept() override;

 private:
  QSettings& settings_;
  CComboBox* language_;
  QSpinBox* interval_;
  QSpinBox* lamp_;
  QSpinBox* silent_;
  QCheckBox* problems_;
  QCheckBox* drift_;
  QCheckBox* notifies_;
  QTimeEdit* quietFrom_;
  QTimeEdit* quietTo_;
};
