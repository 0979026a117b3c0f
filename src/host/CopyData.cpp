// The forms in which hosts pass their data. Each generation of hosts uses its own form, and all are
// kept.

#include <cstring>
#include <iterator>
#include <utility>

#include "device/ModelDataIntake.h"
#include "host/DialogParts.h"

namespace {

template <class Array>
void CopyWhole(Array& to, const void* from) {
  if (from != nullptr) {
    std::memcpy(to.data(), from, sizeof to);
  } else {
    to = {};
  }
}

void CopyList(CountedList& list, int count, const int* values, const char* names) {
  list.count = count;
  CopyWhole(list.values, values);
  CopyWhole(list.names, names);
}

void CopySources(SourceList& list, int count, const char* names, const int* firstValues,
                 const int* secondValues) {
  list.count = count;
  CopyWhole(list.names, names);
  CopyWhole(list.firstValues, firstValues);
  CopyWhole(list.secondValues, secondValues);
}

}  // namespace

// An open dialog keeps its model, because its pages were created for it.
ModelData& CAdvanceDlg::ModelToCreate() {
  return parts_->data.ModelToFill(IsCreated() || IsBusy());
}

void CAdvanceDlg::CopyData(std::string modelName, int dialogType, int mySourceCount,
                           const char* mySourceNames, const int* mySourceFirstValues,
                           const int* mySourceSecondValues, int aspectCount,
                           const int* aspectValues, const char* aspectNames, int gammaCount,
                           const int* gammaValues, const char* gammaNames, int colorTempCount,
                           const int* colorTempValues, const char* colorTempNames) {
  ModelData& model = ModelToCreate();
  model.ModelName = std::move(modelName);
  model.DialogType = dialogType;
  CopySources(model.MySourceList, mySourceCount, mySourceNames, mySourceFirstValues,
              mySourceSecondValues);
  CopyList(model.AspectList, aspectCount, aspectValues, aspectNames);
  CopyList(model.GammaList, gammaCount, gammaValues, gammaNames);
  CopyList(model.ColorTempList, colorTempCount, colorTempValues, colorTempNames);
}

void CAdvanceDlg::CopyData2(std::string modelName, int modelCode, int dialogType, int mySourceCount,
                            const char* mySourceNames, const int* mySourceFirstValues,
                            const int* mySourceSecondValues, int whisperCount,
                            const int* whisperValues, const char* whisperNames, int aspectCount,
                            const int* aspectValues, const char* aspectNames, int gammaCount,
                            const int* gammaValues, const char* gammaNames, int colorTempCount,
                            const int* colorTempValues, const char* colorTempNames) {
  CopyData(std::move(modelName), dialogType, mySourceCount, mySourceNames, mySourceFirstValues,
           mySourceSecondValues, aspectCount, aspectValues, aspectNames, gammaCount, gammaValues,
           gammaNames, colorTempCount, colorTempValues, colorTempNames);
  ModelData& model = ModelToCreate();
  model.ModelCode = modelCode;
  CopyList(model.WhisperList, whisperCount, whisperValues, whisperNames);
}

void CAdvanceDlg::CopyData3(std::string text0, std::string text1, std::string text2,
                            std::string text3, std::string text4, std::string text5,
                            std::string text6, std::string text7, std::string text8,
                            std::string text9, std::string text10, std::string text11,
                            std::string text12, std::string text13, std::string text14,
                            std::string text15, std::string text16, std::string text17,
                            std::string text18, std::string text19, std::string text20,
                            std::string text21, std::string text22, std::string text23,
                            std::string text24, std::string text25, std::string text26,
                            std::string text27, std::string text28, std::string text29,
                            std::string text30, std::string text31) {
  std::string* const texts[] = {&text0,  &text1,  &text2,  &text3,  &text4,  &text5,  &text6,
                                &text7,  &text8,  &text9,  &text10, &text11, &text12, &text13,
                                &text14, &text15, &text16, &text17, &text18, &text19, &text20,
                                &text21, &text22, &text23, &text24, &text25, &text26, &text27,
                                &text28, &text29, &text30, &text31};
  ModelData& model = ModelToCreate();
  for (std::size_t i = 0; i < std::size(texts); ++i) {
    model.RangeTexts[i] = std::move(*texts[i]);
  }
}

void CAdvanceDlg::CopyData(const CModelInfo2* model, int connection) {
  if (model == nullptr) return;
  ModelToCreate() = MakeModelData(*model);
  parts_->data.TakeConnection(MakeConnectionData(*model, connection));
}

void CAdvanceDlg::CopyData(const CProjectorItem* item) {
  if (item == nullptr) return;
  ModelToCreate() = MakeModelData(*item);
  parts_->data.TakeConnection(MakeConnectionData(*item));
}
