#pragma once

#include "CATMetaClass.h"
#include "CATUnicodeString.h"

// A node of the feature tree that the user sees.
class CATISpecObject : public CATBaseUnknown {
  CATDeclareInterface

  // The name shown in the tree: of an instance its instance name, of a reference its part number.
  virtual CATUnicodeString GetName() = 0;
};

using CATISpecObject_var = CATHandle<CATISpecObject>;
