#pragma once

#include <QLineEdit>

#include "Namespace.h"

namespace AdvancedControl {

/// A read-only field for a number, which may have a unit behind it. The unit is drawn inside the
/// field and is no part of its text. User-interface thread only.
class NumberField final : public QLineEdit {
  Q_OBJECT

 public:
  explicit NumberField(QWidget* parent);

  /// Shows a unit behind every number. The field grows if it is too small for `widest` and the
  /// unit.
  void SetUnit(const QString& unit, const QString& widest);
  const QString& Unit() const { return unit_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString unit_;
};

}  // namespace AdvancedControl
