#pragma once

#include <functional>
#include <map>

#include <QObject>

#include "Namespace.h"

class QWidget;

namespace AdvancedControl {

class TemplateDialog;

/// Drops input to the controls of dialogs whose handlers run. Filters the application's events only
/// while there is such a dialog. User-interface thread only.
class InputGate final : public QObject {
 public:
  /// Called with the widget for which input was dropped.
  using Dropped = std::function<void(const QWidget& target)>;

  /// Starts and ends dropping input to `dialog`.
  static void Close(const TemplateDialog& dialog, Dropped dropped);
  static void Open(const TemplateDialog& dialog);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  InputGate() = default;
  static InputGate& Instance();

  std::map<const TemplateDialog*, Dropped> closed_;
};

}  // namespace AdvancedControl
