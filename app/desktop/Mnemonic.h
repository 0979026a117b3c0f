#pragma once

#include <QRegularExpression>
#include <QString>

/// A caption as it is read, without the mark of its mnemonic: "Add" for "&Add", and for a language
/// that puts the letter behind, as in "X(&A)", "X".
inline QString WithoutMnemonic(QString caption) {
  static const QRegularExpression behind(QStringLiteral("\\(&\\w\\)"));
  return caption.remove(behind).remove(QLatin1Char('&'));
}
