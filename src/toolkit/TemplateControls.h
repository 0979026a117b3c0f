#pragma once

#include <vector>

#include "Namespace.h"
#include "toolkit/DialogTemplate.h"

class QGridLayout;
class QWidget;

namespace AdvancedControl {

// Functions of this file: user-interface thread only.

/// Columns that every row of every dialog shares, so that the dialogs look like one family.
namespace RowColumn {
inline constexpr int Label = 0;
inline constexpr int Colon = 1;
inline constexpr int Minus = 2;
inline constexpr int Slider = 3;
inline constexpr int Plus = 4;
inline constexpr int Field = 5;
inline constexpr int Button = 6;
inline constexpr int Count = 7;
}  // namespace RowColumn

/// The side of the square button that resets a row, in pixels; see `RowResets`.
int ResetButtonSide(const QWidget& dialog);

/// A grid for a column of rows, with the shared columns, which have the same width in every dialog.
/// The caller takes ownership.
QGridLayout* MakeRowColumns(const QWidget& dialog);

/// The widget for a control of a template, a direct child of `parent`, which owns it.
QWidget* MakeControl(const ControlTemplate& control, QWidget* parent);

/// Places a row's controls, in template order, into one grid row, centred on its text line.
void PlaceRow(const RowTemplate& row, const std::vector<QWidget*>& controls, QGridLayout* grid,
              int gridRow);

}  // namespace AdvancedControl
