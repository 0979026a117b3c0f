#include "app/desktop/simulation/Demonstration.h"

#include <array>

namespace {

constexpr std::size_t kHot = 3, kSilent = 7, kWarming = 11, kOldLamp = 14, kDirty = 18,
                      kCooling = 23;
constexpr std::chrono::seconds kWarmUp{20};
constexpr std::chrono::seconds kCoolDown{30};
constexpr int kTemperature = 4;
constexpr int kFilter = 8;

// Numbers without a visible pattern.
std::size_t Mixed(std::size_t place, std::size_t below) {
  constexpr std::size_t kFactor = 2'654'435'761;
  std::size_t mixed = (place + 1) * kFactor;
  mixed ^= mixed >> 15U;
  mixed *= kFactor;
  return (mixed >> 12U) % below;
}

}  // namespace

void ShowDemonstration(const std::vector<std::shared_ptr<ProjectorSession>>& sessions) {
  constexpr std::size_t kMostLampHours = 1'700;
  constexpr std::size_t kMostFilterHours = 900;
  for (std::size_t i = 0; i < sessions.size(); ++i) {
    SimulatedProjector& projector = sessions[i]->Simulator();
    const bool isOff = Mixed(i, 10) < 3;
    projector.SetValue(SettingId::LampTime, static_cast<int>(Mixed(i + 100, kMostLampHours)));
    projector.SetValue(SettingId::FilterTime, static_cast<int>(Mixed(i + 200, kMostFilterHours)));
    projector.SetValue(SettingId::Power, isOff ? 0 : 1);
    if (const auto sources = projector.ValuesOf(SettingId::InputSource); !sources.empty())
      projector.SetValue(SettingId::InputSource, sources[Mixed(i + 300, sources.size())]);
    projector.SetPowerTimes(kWarmUp, kCoolDown);
    switch (i) {
      case kHot:
        projector.SetValue(SettingId::Power, 1);
        projector.SetValue(SettingId::ErrorStatus, kTemperature);
        break;
      case kDirty:
        projector.SetValue(SettingId::Power, 1);
        projector.SetValue(SettingId::ErrorStatus, kFilter);
        break;
      case kSilent:
        sessions[i]->SetFault({}, {.kind = Fault::Kind::DropOut});
        break;
      case kWarming:
        projector.SetValue(SettingId::Power, 0);
        projector.Execute({PjtOperation::SetPowerOn});
        break;
      case kCooling:
        projector.SetValue(SettingId::Power, 1);
        projector.Execute({PjtOperation::SetPowerOff});
        break;
      case kOldLamp:
        projector.SetValue(SettingId::Power, 1);
        projector.SetValue(SettingId::LampTime, static_cast<int>(kMostLampHours) + 650);
        break;
      default:
        break;
    }
  }
}
