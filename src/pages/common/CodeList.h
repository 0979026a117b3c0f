#pragma once

#include <cstdint>
#include <span>

#include "device/CPjtInterface.h"
#include "device/ModelData.h"

class CComboBox;

/// Empties a list and fills it with texts of the list category; each entry stands for its position.
void FillList(CComboBox& combo, std::span<const int> listTexts);

/// A text of the list category, or one that is the same in every language.
struct ListEntry {
  constexpr ListEntry(int listText) : number(listText) {}
  constexpr ListEntry(const char* fixedText) : text(fixedText) {}

  int number = 0;
  const char* text = nullptr;
};

/// The same with texts of both kinds.
void FillList(CComboBox& combo, std::span<const ListEntry> entries);

/// The same with a model's capability list: an entry stands for its device value v and shows text
/// `base` + v.
void FillList(CComboBox& combo, const CountedList& values, int base);

/// Reads a setting by command code. A failed read, or a list without entries, disables the list;
/// otherwise it is enabled and shows the first entry that stands for the value, or none.
void RefreshList(CComboBox& combo, CPjtInterface& projector, std::uint16_t code);
