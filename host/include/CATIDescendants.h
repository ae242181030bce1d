#pragma once

#include "CATISpecObject.h"
#include "CATListVal.h"

// The children of a node, by what they are.
class CATIDescendants : public CATBaseUnknown {
  CATDeclareInterface

  // Appends the children, in order, that have the interface named, such as "CATIProduct".
  virtual void GetChildren(const char* interfaceName, CATListValCATISpecObject_var& children) = 0;
};

using CATIDescendants_var = CATHandle<CATIDescendants>;
