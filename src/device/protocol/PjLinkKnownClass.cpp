#include "device/protocol/PjLinkKnownClass.h"

#include <utility>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

void PjLinkKnownClass::Remember(char protocolClass) {
  class_ = protocolClass;
  isRemembered_ = true;
}

void PjLinkKnownClass::Take(std::string_view parameter) {
  // A projector that does not know the question has class 1. Other errors say nothing about the
  // class.
  if (PjLink::IsError(parameter) && !PjLink::SameWord(parameter, PjLink::kUndefined)) return;
  class_ = PjLink::ProtocolClass(parameter);
  isRemembered_ = false;
}

void PjLinkKnownClass::HandleSilence(bool wasSent) {
  if (wasSent == isRemembered_) class_.reset();
}

bool PjLinkKnownClass::HandleUnknownCommand() {
  if (!std::exchange(isRemembered_, false)) return false;
  class_.reset();
  return true;
}

char PjLinkKnownClass::ForRequest(PjLinkClass needed) const {
  if (needed == PjLinkClass::First) return '1';
  return class_.value_or(needed == PjLinkClass::Second ? '2' : '1');
}

}  // namespace AdvancedControl
