#include "product/ProductDocument.h"

#include "CATILinkableObject.h"
#include "CATIProduct.h"

namespace zrk::product {

ProductDocument ReachDocument(const CATBaseUnknown_var& object) {
  CATIProduct_var product(object);
  if (!product) return {DocumentState::NotAProduct, {}};
  if (FAILED(product->TestReference())) product = product->GetReferenceProduct();
  if (!product) return {DocumentState::NoReference, {}};
  const CATILinkableObject_var linkable(product);
  if (!linkable) return {DocumentState::NotLinkable, {}};
  const CATDocument_var document = linkable->GetDocument();
  if (!document) return {DocumentState::NoDocument, {}};
  return {DocumentState::HasDocument, document->StorageName()};
}

}  // namespace zrk::product
