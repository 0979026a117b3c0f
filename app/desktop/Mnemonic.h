#pragma once

#include <QRegularExpression>
#include <QString>

/// A caption without its mnemonic: "Add" for "&Add", and "X" for "X(&A)", which is how some
/// languages append the letter.
inline QString WithoutMnemonic(QString caption) {
  static const QRegularExpression behind(QStringLiteral("\\(&\\w\\)"));
  return caption.remove(behind).remove(QLatin1Char('&'));
}
