#pragma once

#include <cstdint>
#include <optional>

#include "Namespace.h"
#include "toolkit/LineLabel.h"

namespace AdvancedControl {

/// A text that may have a mark before it and a bar after it. The marks differ in shape as well as
/// in colour, and only repeat what the text says. User-interface thread only.
class StateLabel final : public LineLabel {
  Q_OBJECT

 public:
  enum class Mark : std::uint8_t {
    None,
    Good,       ///< Green disc.
    Idle,       ///< Empty circle.
    Attention,  ///< Amber triangle.
    Bad,        ///< Red diamond.
  };

  using LineLabel::LineLabel;

  /// Shows a mark. From the first call on, the text leaves room for one, so that the texts of
  /// several labels are aligned.
  void SetMark(Mark mark);
  Mark ShownMark() const { return mark_; }

  /// Shows a bar in the mark's colour, filled to `share` (1 or more is full); nothing for no bar.
  /// Without a mark there is no bar.
  void SetShare(std::optional<double> share);
  std::optional<double> Share() const { return share_; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int TextWidth() const { return LineLabel::sizeHint().shrunkBy(contentsMargins()).width(); }

  Mark mark_ = Mark::None;
  std::optional<double> share_;
};

}  // namespace AdvancedControl
