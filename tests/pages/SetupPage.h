#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/support/DialogDriver.h"

using Strings = std::vector<std::string>;
using Script = std::function<void(RecordingChannel&)>;

inline constexpr int kSetupTab = 4;

inline CModelInfo2 SetupModel(int modelCode) {
  CModelInfo2 model = MakeModel(5, modelCode);
  for (const char* name : {"Normal", "Eco", "Bright"}) AddEntry(model.WhisperList, 0, name);
  return model;
}

/// The setup page of a model, in front, on a scripted projector.
struct SetupPage {
  explicit SetupPage(int modelCode, const Script& script = {})
      : SetupPage(SetupModel(modelCode), script) {}
  explicit SetupPage(const CModelInfo2& model, const Script& script = {})
      : open(model, kSetupTab, script) {}

  // Reads the page afresh after `script`, and forgets the reads.
  void Refresh(const Script& script) {
    script(projector);
    open.Page().InitDisp();
    projector.Take();
  }

  OpenDialog open;
  DialogDriver driver = open.Driver();
  RecordingChannel& projector = open.Projector();
};
