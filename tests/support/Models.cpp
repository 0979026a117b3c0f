#include "tests/support/Models.h"

#include <string>

CModelInfo2 MakeModel(int dialogType, int modelCode) {
  CModelInfo2 model;
  model.ModelName = "Model";
  model.DialogType = dialogType;
  model.ModelCode = modelCode;
  return model;
}

void AddEntry(CountedList& list, int value, const char* name) {
  const auto index = static_cast<std::size_t>(list.count++);
  list.values[index] = value;
  list.names[index] = MakeNameSlot(name);
}

void AddSource(SourceList& list, int value, const char* name) {
  const auto index = static_cast<std::size_t>(list.count++);
  list.firstValues[index] = value;
  list.names[index] = MakeNameSlot(name);
}

CModelInfo2 FullModel(int dialogType, int modelCode) {
  CModelInfo2 model = MakeModel(dialogType, modelCode);
  for (const int value : {16, 17, 32, 33}) AddEntry(model.GammaList, value, "gamma");
  for (const int value : {1, 2, 3, 17}) AddEntry(model.ColorTempList, value, "temperature");
  for (const int value : {0, 1, 8, 9}) AddEntry(model.AspectList, value, "aspect");
  for (const char* name : {"Normal", "Whisper", "Bright"}) {
    AddEntry(model.WhisperList, model.WhisperList.count, name);
  }
  for (const int value :
       {0, 1, 3, 4, 16, 17, 18, 22, 25, 26, 27, 32, 33, 34, 35, 36, 48, 49, 255}) {
    AddEntry(model.MyButtonList, value, "button");
  }
  AddSource(model.MySourceList, 0, "Computer1");
  AddSource(model.MySourceList, 4, "Computer2");
  AddSource(model.MySourceList, 6, "MIU");
  AddSource(model.MySourceList, 1, "Video");
  return model;
}

const std::map<int, std::vector<int>>& ListedModels() {
  static const std::map<int, std::vector<int>> models{
      {1, {0, 1, 2, 3, 16, 17}},
      {2, {0, 6, 7, 14, 15, 18, 19, 20}},
      {3, {0, 4, 5, 8, 10, 47, 48, 71}},
      {4, {0, 9, 11, 12, 13, 21, 22, 23, 24, 25, 26, 27, 28, 29}},
      {5, {29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42,
           43, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55}},
  };
  return models;
}

std::vector<CModelInfo2> EveryModel() {
  std::vector<CModelInfo2> models;
  for (const auto& [dialogType, codes] : ListedModels()) {
    for (const int code : codes) models.push_back(FullModel(dialogType, code));
  }
  return models;
}

std::string NameOf(const CModelInfo2& model) {
  return "type " + std::to_string(model.DialogType) + " code " + std::to_string(model.ModelCode);
}
