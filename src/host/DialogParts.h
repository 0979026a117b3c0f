#pragma once

#include <functional>
#include <map>
#include <string>

#include <QTimer>

#include "host/CAdvanceDlg.h"
#include "host/DialogFrame.h"
#include "host/DialogPages.h"
#include "host/HostData.h"
#include "host/ProjectorStrip.h"
#include "host/SettingSearch.h"
#include "pages/common/Waiting.h"
#include "pages/common/WantedSettings.h"
#include "toolkit/ResourceModule.h"

/// The parts of the dialog, and what they do together.
struct CAdvanceDlg::Parts {
  explicit Parts(CAdvanceDlg& owner);

  DialogFrame::Parts Framed();
  void AddShortcut(const QKeySequence& keys, std::function<void()> act);
  void SetTitle();
  void SetStrip();
  QString ConnectionText() const;
  void ShowIdle(bool left);
  void ShowWaiting(bool waiting);
  QString WaitingText() const;
  void ReadLater();
  void UseReportedInputs();
  void ShowSources(const ModelData& before);

  CAdvanceDlg& dialog;
  HostData data;
  DialogPages pages;
  Waiting waiting;
  StatusLine& status;
  SettingSearch search;
  ProjectorStrip& strip;
  DialogFrame frame;
  QTimer inputsWatch;                              // runs while the projector may report inputs
  const ResourceModule* savedResources = nullptr;  // restored when the dialog closes
  std::string projectorName;
  WantedSettings wanted;
  std::map<std::string, int, std::less<>> lastSeen;  // device values by key
  CPjtInterface::Tally shownTally;  // until which the strip shows whether the projector answers
  bool hostOption = false;
  bool reading = false;  // a page is being read
};
