#pragma once

#include <windows.h>

#include "CATIDOM.h"

class ZRKAttModelerServices {
public:
  // Parses a whole XML text. `document` is null, and the result negative, when the text is not one
  // well-formed document. External entities are not followed.
  static HRESULT CreateXMLDOMFromString(const CATUnicodeString& text, CATIDOMDocument_var& document);
};
