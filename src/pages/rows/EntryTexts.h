#pragma once

#include <span>
#include <string_view>

#include <QString>

#include "settings/ListEntry.h"

class CComboBox;

/// A text that is the same in every language.
QString PlainText(std::string_view text);
/// The text of an entry, in the language of the catalog.
QString TextOf(const ListEntry& entry);
/// Fills a list anew; nothing is selected then.
void FillList(CComboBox& list, std::span<const ListEntry> entries);
