#pragma once

#include "CATListVal.h"
#include "CATMetaClass.h"

// The way from a node of the product structure to those below it.
class CATINavigateObject : public CATBaseUnknown {
  CATDeclareInterface

  // The children in order, in a list that becomes the caller's; null when there are none.
  virtual CATListValCATBaseUnknown_var* GetChildren() = 0;
};

using CATINavigateObject_var = CATHandle<CATINavigateObject>;
