#pragma once

#include <QLabel>

#include "Namespace.h"

namespace AdvancedControl {

/// A one-line label that measures its text once; QLabel would lay it out three times.
/// User-interface thread only.
class LineLabel : public QLabel {
 public:
  LineLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
  }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  mutable QString measuredText_;
  mutable QSize measured_;
};

}  // namespace AdvancedControl
