// The copy operations of the value types, in a file of their own, so that every library that passes
// these objects across its boundary can compile and export them.
#include "device/CComCtrl.h"
#include "device/CModelInfo.h"
#include "device/CPjtInterface.h"
#include "device/CScheduleInfo.h"
#include "device/CSocketCtrl.h"

CPjtInterface::CPjtInterface(const CPjtInterface&) = default;
CPjtInterface& CPjtInterface::operator=(const CPjtInterface&) = default;

CModelInfo::CModelInfo(const CModelInfo&) = default;
CModelInfo& CModelInfo::operator=(const CModelInfo&) = default;

CScheduleInfo& CScheduleInfo::operator=(const CScheduleInfo&) = default;
CComCtrl& CComCtrl::operator=(const CComCtrl&) = default;
CSocketCtrl& CSocketCtrl::operator=(const CSocketCtrl&) = default;
