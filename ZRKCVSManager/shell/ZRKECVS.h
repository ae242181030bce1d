#pragma once

#include "CATBaseUnknown.h"
#include "CATUnicodeString.h"

// The data extension of "ASMPRODUCT" behind ZRKICVS.
class ZRKECVS : public CATBaseUnknown {
public:
  explicit ZRKECVS(CATBaseUnknown& product) : CATBaseUnknown(product) {}

  static CATMetaClass* MetaObject();

  // Assigns the storage path of the product's document; without one `path` is left as it was.
  void GetStorageName(CATUnicodeString& path);
};
