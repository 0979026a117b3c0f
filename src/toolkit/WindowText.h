#pragma once

#include <QString>

class QWidget;

/// The caption of a control or dialog: a label's or button's text, a dialog's title. Controls
/// whose text is content, such as fields and lists, have none.
QString WindowText(const QWidget& window);

/// Sets the caption; does nothing on a control that has none.
void SetWindowText(QWidget& window, const QString& text);
