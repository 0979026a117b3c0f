#pragma once

#include <cstdint>
#include <string>

#include "ProjectorCommonExport.h"

/// Parameters of a network connection. A value: copying it copies the parameters.
class PROJECTOR_COMMON_EXPORT CSocketCtrl {
 public:
  CSocketCtrl() = default;
  CSocketCtrl(const CSocketCtrl&) = default;
  CSocketCtrl& operator=(const CSocketCtrl& other);

  std::string Address;    ///< Host name or dotted address.
  std::string Secret;     ///< Password for opening a connection; may be empty.
  std::int32_t Port = 0;  ///< 0 if the host has not set it.

  friend bool operator==(const CSocketCtrl&, const CSocketCtrl&) = default;
};
