#pragma once

#include <chrono>
#include <optional>

#include <QObject>

#include "Namespace.h"
#include "host/FindLine.h"

class CDialog;

namespace AdvancedControl {

class DialogPages;

/// Finds a setting of a dialog by its caption and shows it. User-interface thread only.
class SettingSearch final : public QObject {
 public:
  /// Both must outlive the search.
  SettingSearch(CDialog& dialog, DialogPages& pages) : dialog_(dialog), pages_(pages) {}

  /// Lets the user type the caption. Only after the pages were created.
  void Start();
  /// Ends the search, because the dialog is closed and may get other pages.
  void Stop();
  /// The line in which the user types; owned by the dialog, null until the first `Start`.
  FindLine* Line() const { return line_; }

 private:
  void GoTo(const FindLine::Place& place);
  void OpenPopUp(int button, int control, std::chrono::milliseconds delay = {});

  CDialog& dialog_;
  DialogPages& pages_;
  FindLine* line_ = nullptr;
};

}  // namespace AdvancedControl
