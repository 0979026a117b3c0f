#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include <QCoreApplication>
#include <QString>

/// `Acctl::tr` returns the program's texts in the user's language; `tr(text, comment, n)` chooses
/// the plural form for n.
struct Acctl {
  Q_DECLARE_TR_FUNCTIONS(Acctl)
};

inline QString Wide(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QString InsertText(std::integral auto number) { return QString::number(number); }
inline QString InsertText(const QString& text) { return text; }
inline QString InsertText(const std::string& text) { return Wide(text); }
inline QString InsertText(const char* text) { return Wide(text); }
inline QString InsertText(std::string_view text) { return Wide(text); }

/// A text, with the inserts for its %1, %2 ...
template <class... Inserts>
std::string Message(const QString& text, const Inserts&... inserts) {
  if constexpr (sizeof...(inserts) == 0) {
    return text.toStdString();
  } else {
    return text.arg(InsertText(inserts)...).toStdString();
  }
}
