#pragma once

#include "CATMetaClass.h"

// Marks an object whose document can be under version control; having the interface is its whole
// meaning. Whether the object may be modified is asked with IsCVSModifiable.
class ZRKICVSModifiable : public CATBaseUnknown {
  CATDeclareInterface
};

using ZRKICVSModifiable_var = CATHandle<ZRKICVSModifiable>;
