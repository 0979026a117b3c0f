#pragma once

#include <optional>

#include <QString>

#include "Namespace.h"
#include "device/CPjtInterface.h"

namespace AdvancedControl {

class RowView;

// What a row's view knows of the projector's value, and says about the user's actions on the row.
// User-interface thread only.

/// The row's name for the user: its caption, and what distinguishes it from other rows with the
/// same caption.
QString NameOf(const RowView& row);

/// Remembers the position that the projector has now: it was read, or a change was accepted.
void Confirm(RowView& row, std::optional<int> position);

/// Whether the projector has refused a command since `before`, even one whose operation returns
/// nothing.
bool IsRefusedSince(const RowView& row, const CPjtInterface::Tally& before);

/// Shows the user that the projector did not accept `tried`, the text of a value or of a button, in
/// the line beside Close and by a mark on the row, which stays until `Confirm`.
void ShowRefusal(RowView& row, const QString& tried);

/// Whether the row shows a position that the projector does not have, as after a refusal.
bool ShowsAnother(const RowView& row);

/// The position that the row should have now; nothing if any will do.
std::optional<int> WantedPosition(const RowView& row);
/// Whether the projector has another position than the wanted one.
bool Differs(const RowView& row);
/// Whether the projector had another position than the wanted one when the host last saw it; false
/// for a row that was read since.
bool DifferedWhenSeen(const RowView& row);

}  // namespace AdvancedControl
