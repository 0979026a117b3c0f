#include "device/protocol/PjLinkReports.h"

#include <chrono>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace {

constexpr std::chrono::seconds kFresh{1};

}  // namespace

void PjLinkReports::Keep(std::string_view command, const std::string& parameter, Reader reader,
                         SessionTime now) {
  kept_[command] = {parameter, reader, now};
}

std::optional<std::string> PjLinkReports::Take(std::string_view command, Reader reader,
                                               SessionTime now) {
  auto kept = kept_.extract(command);
  if (!kept || now - kept.mapped().time >= kFresh || kept.mapped().reader == reader) {
    return std::nullopt;
  }
  return std::move(kept.mapped().parameter);
}

void PjLinkReports::KeepPower(std::string_view parameter, SessionTime now) {
  power_ = PjLink::Power(parameter);
  powerAt_ = now;
}

bool PjLinkReports::IsPowerFresh(SessionTime now) const {
  return powerAt_ && now - *powerAt_ < kFresh;
}

void PjLinkReports::Outdate() {
  kept_.clear();
  powerAt_.reset();
}

}  // namespace AdvancedControl
