#pragma once

#include "ZRKCVSManagerExport.h"

class CATBaseUnknown;

// The ties through which the host reaches the extensions. Each call makes one, with one reference that is
// the caller's; null when it cannot be made.
extern "C" {
ZRKCVSMANAGER_EXPORT CATBaseUnknown* CreateTIEZRKICVSZRKECVS(CATBaseUnknown* extension);
ZRKCVSMANAGER_EXPORT CATBaseUnknown* CreateTIEZRKICVSManagerZRKECVSManager(CATBaseUnknown* extension);
ZRKCVSMANAGER_EXPORT CATBaseUnknown* CreateTIEZRKICVSModifiableZRKECVSModifiable(CATBaseUnknown* extension);
}
