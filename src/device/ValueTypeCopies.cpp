// Copying of the value types, in one place so that every library which hands these objects across
// its boundary can compile and export it.
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
