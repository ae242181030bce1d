#pragma once

#include "CATDocument.h"
#include "CATMetaClass.h"

// An object that lives in a document which links can point at.
class CATILinkableObject : public CATBaseUnknown {
  CATDeclareInterface

  // The document; null when there is none.
  virtual CATDocument_var GetDocument() = 0;
};

using CATILinkableObject_var = CATHandle<CATILinkableObject>;
