#pragma once

#include <QString>

#include "Namespace.h"

class QWidget;

namespace AdvancedControl {

/// Title and buttons of a box. If the text of a button is empty, the button has Qt's own text.
struct BoxTexts {
  QString title{}, ok{}, yes{}, no{};
};

/// Shows an error with a stop icon and an OK button. Modal to `owner`'s window; returns when the
/// user has closed it, or when the owner dies. User-interface thread only.
void ShowStopMessage(QWidget& owner, const QString& text, const BoxTexts& texts);

/// Asks a question with an information icon, Yes and No buttons; No is the default button. True for
/// Yes; closing the box or Esc is No. User-interface thread only.
bool AskYesNo(QWidget& owner, const QString& text, const BoxTexts& texts);

}  // namespace AdvancedControl
