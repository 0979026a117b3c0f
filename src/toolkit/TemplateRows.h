#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include <QPointer>
#include <QRect>
#include <QSize>

#include "Namespace.h"

class QGridLayout;
class QHBoxLayout;
class QWidget;

namespace AdvancedControl {

struct DialogTemplate;
struct RowTemplate;

/// Dialog units to device-independent pixels, in the font of `widget`.
QSize FromDialogUnits(const QWidget& widget, int width, int height);

/// The rows of a template dialog in their columns: all present rows have the same pitch, and absent
/// ones take no space. User-interface thread only.
class TemplateRows {
 public:
  /// `dialog` must outlive the rows.
  explicit TemplateRows(QWidget& dialog) : dialog_(dialog) {}

  /// Forgets the rows and deletes their layout.
  void Clear();
  /// Sets the template of the rows, which must outlive them.
  void Use(const DialogTemplate& rows) { template_ = &rows; }
  /// Adds the controls of the template's next row.
  void Add(std::vector<QWidget*> controls);
  /// Places all rows of the template.
  void Arrange();
  /// Updates the layout after texts or the presence of rows have changed.
  void Update();

  /// The controls of the row with this control; empty if there is none.
  std::span<QWidget* const> ControlsBeside(const QWidget* control);
  /// Shows or removes the row with this control. False if there is none.
  bool Show(const QWidget* control, bool present);

  /// Adds a sentence above the rows.
  void PlaceNotice(QWidget& notice) const;
  /// Places a widget in the row of Close, where it gets the space that Close leaves, however much
  /// it wants.
  void PlaceBesideClose(QWidget& widget) const;

  /// Gives the captions of all these dialogs the same width, the left columns and the right columns
  /// each. Absent rows do not count.
  static void ShareCaptionWidths(std::span<const TemplateRows* const> dialogs);

  /// Lets the rows of a window scroll if they do not fit on its screen; Close stays visible.
  void FitToScreen();
  bool AreScrolled() const { return scroll_ != nullptr; }

 private:
  struct Row {
    const RowTemplate* line = nullptr;
    std::vector<QWidget*> controls{};
    QGridLayout* grid = nullptr;
    int gridRow = 0;
    bool present = true;
  };

  Row* RowOf(const QWidget* control);
  void ShareButtonWidths() const;
  void ShareListWidths() const;

  QWidget& dialog_;
  const DialogTemplate* template_ = nullptr;
  std::vector<Row> rows_;            // in the template's order
  QHBoxLayout* closeRow_ = nullptr;  // Close and what stands beside it
  int pitch_ = 0;                    // height of the present rows, in pixels
  QPointer<QWidget> scroll_;  // scrolls the rows of a window that is too large for the screen
};

}  // namespace AdvancedControl
