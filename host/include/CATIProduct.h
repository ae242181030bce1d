#pragma once

#include <windows.h>

#include "CATMetaClass.h"

// A node of the product structure: a reference product, or an instance of one in an assembly.
class CATIProduct : public CATBaseUnknown {
  CATDeclareInterface

  // The reference test: 0 on a reference product, negative on an instance.
  virtual HRESULT TestReference() = 0;
  // The reference product of an instance; null when it is not loaded. A reference product gives itself.
  virtual CATHandle<CATIProduct> GetReferenceProduct() = 0;
};

using CATIProduct_var = CATHandle<CATIProduct>;
