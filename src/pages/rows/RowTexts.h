#pragma once

#include <span>
#include <string_view>

#include <QString>

#include "Namespace.h"
#include "settings/Rows.h"

class CComboBox;

namespace AdvancedControl {

/// A text that is the same in every language.
QString PlainText(std::string_view text);
/// A row's caption as shown to the user.
QString CaptionText(const PageRow& row);
/// The text of an entry, in the language of the catalog.
QString TextOf(const ListEntry& entry);
/// The unit of the row's number; empty if it has none.
QString UnitText(const PageRow& row);
/// A text about the row's numbers, followed by their unit if they have one.
QString WithUnit(const QString& text, const PageRow& row);
/// Replaces the entries of a list. Nothing is selected afterwards.
void FillList(CComboBox& list, std::span<const ListEntry> entries);

}  // namespace AdvancedControl
