#pragma once

#include "CATBaseUnknown.h"

// The data extension of "ASMPRODUCT" behind the marker interface ZRKICVSModifiable.
class ZRKECVSModifiable : public CATBaseUnknown {
public:
  explicit ZRKECVSModifiable(CATBaseUnknown& product) : CATBaseUnknown(product) {}

  static CATMetaClass* MetaObject();
};
