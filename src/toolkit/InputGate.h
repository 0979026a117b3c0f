#pragma once

#include <vector>

#include <QObject>

#include "Namespace.h"

namespace AdvancedControl {

class TemplateDialog;

/// Drops what the user does to the controls of dialogs whose handlers run. Only while there is such
/// a dialog does it look at the application's events.
class InputGate final : public QObject {
 public:
  /// One more dialog is busy, and one fewer.
  static void Close(const TemplateDialog& dialog);
  static void Open(const TemplateDialog& dialog);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  InputGate() = default;
  static InputGate& Only();

  std::vector<const TemplateDialog*> closed_;
};

}  // namespace AdvancedControl
