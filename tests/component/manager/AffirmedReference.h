#pragma once

#include "CATIProduct.h"
#include "framework/Facet.h"

// A reference product as it is, but for its reference test, which answers with a positive code: only a
// negative one denies. Whoever takes it for an instance finds no reference product.
class AffirmedReference final : public CATBaseUnknown {
public:
  static CATBaseUnknown_var Of(const CATBaseUnknown_var& reference) {
    return CATBaseUnknown_var::Adopt(new AffirmedReference(reference));
  }

  CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
    if (interfaceId != CATIProduct::ClassId()) return reference_->QueryInterface(interfaceId);
    AddRef();
    return &product_;
  }

private:
  class ProductPart final : public standin::Facet<CATIProduct> {
  public:
    using Facet::Facet;
    HRESULT TestReference() override { return 1; }
    CATIProduct_var GetReferenceProduct() override { return nullptr; }
  };

  explicit AffirmedReference(const CATBaseUnknown_var& reference) : reference_(reference) {}

  CATBaseUnknown_var reference_;
  ProductPart product_{*this};
};
