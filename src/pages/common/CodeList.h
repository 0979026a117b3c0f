#pragma once

#include <cstdint>
#include <span>

#include "device/CPjtInterface.h"
#include "device/ModelData.h"

class CComboBox;

/// Empties a list and fills it with texts of the list category; each entry stands for its position.
void FillList(CComboBox& combo, std::span<const int> listTexts);

/// The same with a model's capability list: an entry stands for its device value v and shows text
/// `base` + v.
void FillList(CComboBox& combo, const CountedList& values, int base);

/// Reads a setting by command code. A failed read, or a list without entries, disables the list;
/// otherwise it is enabled and shows the first entry that stands for the value, or none.
void RefreshList(CComboBox& combo, CPjtInterface& projector, std::uint16_t code);
