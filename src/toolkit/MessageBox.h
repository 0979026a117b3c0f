#pragma once

#include <QString>

#include "Namespace.h"

class QWidget;

namespace AdvancedControl {

/// Texts of the buttons; an empty text means Qt's own.
struct ButtonTexts {
  QString ok, yes, no;
};

/// Shows an error with a stop icon and an OK button. Modal to `owner`'s window, whose title it has;
/// returns when the user has closed it, or when the owner dies. User-interface thread only.
void ShowStopMessage(QWidget* owner, const QString& text, const ButtonTexts& buttons = {});

/// Asks a question with an information icon, Yes and No buttons; No is the default button. True for
/// Yes; closing the box or Esc is No. User-interface thread only.
bool AskYesNo(QWidget* owner, const QString& text, const ButtonTexts& buttons = {});

}  // namespace AdvancedControl
