#pragma once

#include <QLabel>

#include "Namespace.h"

namespace AdvancedControl {

/// A one-line label that measures its text once; QLabel would lay it out three times. Its text
/// starts at the side where the layout starts, whatever the text's own direction. It has a margin,
/// because letters may be higher than their font says, or begin left of their place. User-interface
/// thread only.
class LineLabel : public QLabel {
 public:
  LineLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    SetMargin();
    if (isRightToLeft()) AlignToStart(*this);
  }

  /// Aligns a label with the side where its layout starts; QLabel follows the direction of its
  /// text.
  static void AlignToStart(QLabel& label);
  /// The margin of a label with this font, in pixels.
  static int MarginOf(const QFontMetrics& metrics);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void SetMargin();

  mutable QString measuredText_;
  mutable QSize measured_;
};

}  // namespace AdvancedControl
