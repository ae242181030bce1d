#pragma once

#include "CATIDOM.h"
#include "ZRKIAttributes.h"

class ZRKAttPackageBaseServices {
public:
  // The session's attribute dictionary; null when there is none.
  static ZRKIAttDictionary_var GetDicoLookUp();

  // The text content of a node: all text below it, in order, joined.
  static void GetNodeText(const CATIDOMNode_var& node, CATUnicodeString& text);
};
