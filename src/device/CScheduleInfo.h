#pragma once

#include <cstdint>

#include "ProjectorCommonExport.h"

/// One entry of a projector's schedule. A value: copying it copies every member.
class PROJECTOR_COMMON_EXPORT CScheduleInfo {
 public:
  enum class Action : std::int32_t { PowerOff, PowerOn, SelectInput };

  CScheduleInfo() = default;
  CScheduleInfo(const CScheduleInfo&) = default;
  CScheduleInfo& operator=(const CScheduleInfo& other);

  bool Enabled = false;
  std::uint8_t Weekdays = 0;  ///< Bit 0 Monday … bit 6 Sunday; 0 is never.
  std::int32_t Hour = 0;      ///< 0..23, local time.
  std::int32_t Minute = 0;    ///< 0..59.
  Action Task = Action::PowerOff;
  std::int32_t InputSource = 0;  ///< Input source number; meaningful for `SelectInput`.

  friend bool operator==(const CScheduleInfo&, const CScheduleInfo&) = default;
};
