#pragma once

#include "CATBaseUnknown.h"
#include "CATUnicodeString.h"

// A document that the host has in its session.
class CATDocument : public CATBaseUnknown {
public:
  // Full path of the file the document is stored in, separated by "\"; empty when it was never stored.
  virtual CATUnicodeString StorageName() = 0;
};

using CATDocument_var = CATHandle<CATDocument>;
