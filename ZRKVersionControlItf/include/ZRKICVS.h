#pragma once

#include "CATMetaClass.h"
#include "CATUnicodeString.h"

// Version-control facts of a product. Implemented by the version-control component for every product.
class ZRKICVS : public CATBaseUnknown {
  CATDeclareInterface

  // Assigns to `path` the full path of the file that the product's document is stored in: of an
  // instance, the document of its reference. Without a document `path` is left as it was, so pass an
  // empty text to give.
  virtual void GetStorageName(CATUnicodeString& path) = 0;
};

using ZRKICVS_var = CATHandle<ZRKICVS>;
