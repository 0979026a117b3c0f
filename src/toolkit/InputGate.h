#pragma once

#include <vector>

#include <QObject>

#include "Namespace.h"

namespace AdvancedControl {

class InputDialog;

/// Drops input to the controls of dialogs whose handlers run. Filters the application's events only
/// while there is such a dialog. User-interface thread only.
class InputGate final : public QObject {
 public:
  /// Starts and ends dropping input to `dialog`.
  static void Close(const InputDialog& dialog);
  static void Open(const InputDialog& dialog);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  InputGate() = default;
  static InputGate& Instance();

  std::vector<const InputDialog*> closed_;
};

}  // namespace AdvancedControl
