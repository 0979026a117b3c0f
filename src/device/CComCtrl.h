#pragma once

#include <cstdint>

#include "ProjectorCommonExport.h"

/// Parameters of a serial connection. A value: copying it copies the parameters.
class PROJECTOR_COMMON_EXPORT CComCtrl {
 public:
  CComCtrl() = default;
  CComCtrl(const CComCtrl&) = default;
  CComCtrl& operator=(const CComCtrl& other);

  std::int32_t Port = 0;      ///< Zero-based; users see the number plus one.
  std::int32_t BaudRate = 0;  ///< Bits per second; 0 if the host has not set it.

  friend bool operator==(const CComCtrl&, const CComCtrl&) = default;
};
