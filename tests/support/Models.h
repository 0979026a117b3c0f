#pragma once

#include <map>
#include <vector>

#include "device/CModelInfo2.h"

/// A minimal model record.
CModelInfo2 MakeModel(int dialogType, int modelCode);
/// The same with every list filled.
CModelInfo2 FullModel(int dialogType, int modelCode);
void AddEntry(CountedList& list, int value, const char* name);
void AddSource(SourceList& list, int value, const char* name);

/// By dialog type: every model code that some page of its set treats specially, and one that no
/// page does.
const std::map<int, std::vector<int>>& ListedModels();
/// The full models of all listed codes.
std::vector<CModelInfo2> EveryModel();
/// "type 5 code 30"
std::string NameOf(const CModelInfo2& model);
