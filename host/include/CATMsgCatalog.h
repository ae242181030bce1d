#pragma once

#include "CATUnicodeString.h"

class CATMsgCatalog {
public:
  // The text of `key` in the catalog named, with /P1, /P2 ... replaced by the parameters; `defaultText`,
  // as it stands, when there is no such catalog or key.
  static CATUnicodeString BuildMessage(const CATUnicodeString& catalog, const CATUnicodeString& key,
                                       const CATUnicodeString* parameters, int parameterCount,
                                       const CATUnicodeString& defaultText);
};
