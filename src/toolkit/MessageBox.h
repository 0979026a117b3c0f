#pragma once

#include <QString>

#include "Namespace.h"

class QWidget;

namespace AdvancedControl {

/// What the buttons bear; an empty text leaves the toolkit's own.
struct ButtonTexts {
  QString ok, yes, no;
};

/// Tells the user of a failure: stop icon, one OK button. Modal to `owner`'s window, whose title
/// it bears; returns when the user has closed it.
void ShowStopMessage(QWidget* owner, const QString& text, const ButtonTexts& buttons = {});

/// Asks the user: information icon, Yes and No buttons, No preselected. Closing the box or Esc
/// answers No. True for Yes.
bool AskYesNo(QWidget* owner, const QString& text, const ButtonTexts& buttons = {});

}  // namespace AdvancedControl
