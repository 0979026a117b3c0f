#include "device/protocol/PjLinkQuestion.h"

#include <QString>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace {

std::string Printable(const std::string& text) {
  QString printable = QString::fromStdString(text);
  printable.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
  return printable.toStdString();
}

}  // namespace

PjLinkResult ResultOf(const PjLinkAnswer& answer) {
  using Kind = PjLinkResult::Kind;
  if (!answer.parameter) return {.wasAsked = answer.sent};
  if (!PjLink::IsError(*answer.parameter)) return {Kind::Text, Printable(*answer.parameter)};
  return {PjLink::SameWord(*answer.parameter, PjLink::kNotNow) ? Kind::NotNow : Kind::None};
}

}  // namespace AdvancedControl
