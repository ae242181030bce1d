#pragma once

#include "CATMetaClass.h"
#include "CATUnicodeString.h"

// A knowledge parameter: a named value, read and set as text.
class CATICkeParm : public CATBaseUnknown {
  CATDeclareInterface

  virtual void Valuate(const CATUnicodeString& text) = 0;
  // Whether a value was ever set.
  virtual bool HasValue() = 0;
  // The value as text; empty when there is none.
  virtual CATUnicodeString AsText() = 0;
};

using CATICkeParm_var = CATHandle<CATICkeParm>;
