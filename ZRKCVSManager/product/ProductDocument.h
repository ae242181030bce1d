#pragma once

#include "CATBaseUnknown.h"
#include "CATUnicodeString.h"

// From a product to the file that its document is stored in.
namespace zrk::product {

// How far the way to the document leads: an object, the product it is, the reference of that, the
// reference as a linkable object, its document.
enum class DocumentState { NotAProduct, NoReference, NotLinkable, NoDocument, HasDocument };

struct ProductDocument {
  DocumentState State = DocumentState::NotAProduct;
  // Storage path of the document, separated by "\"; empty without a document, and for a document that
  // was never stored.
  CATUnicodeString Path;

  bool Exists() const { return State == DocumentState::HasDocument; }
};

// The document of a product; of an instance that of its reference. A null object is not a product.
ProductDocument ReachDocument(const CATBaseUnknown_var& object);

}  // namespace zrk::product
