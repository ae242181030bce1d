#pragma once

#include "CATMetaClass.h"
#include "CATUnicodeString.h"

// The host's XML document object model, as far as reports need it.

class CATIDOMNode : public CATBaseUnknown {
  CATDeclareInterface
};
using CATIDOMNode_var = CATHandle<CATIDOMNode>;

class CATIDOMNodeList : public CATBaseUnknown {
  CATDeclareInterface

  virtual int GetLength() = 0;
  // The node at `position`, counted from 0; null outside the list.
  virtual CATIDOMNode_var Item(int position) = 0;
};
using CATIDOMNodeList_var = CATHandle<CATIDOMNodeList>;

class CATIDOMElement : public CATBaseUnknown {
  CATDeclareInterface

  // Value of the element's attribute of that name; empty when it has none.
  virtual CATUnicodeString GetAttribute(const CATUnicodeString& name) = 0;
  // All elements of that name below this one, at any depth, in document order.
  virtual CATIDOMNodeList_var GetElementsByTagName(const CATUnicodeString& name) = 0;
};
using CATIDOMElement_var = CATHandle<CATIDOMElement>;

class CATIDOMDocument : public CATBaseUnknown {
  CATDeclareInterface

  virtual CATIDOMElement_var GetDocumentElement() = 0;
};
using CATIDOMDocument_var = CATHandle<CATIDOMDocument>;
