#pragma once

#include "CATBaseUnknown.h"

// A product as it is, but for one interface, which another object has, or none.
class AlteredProduct final : public CATBaseUnknown {
public:
  AlteredProduct(const CATBaseUnknown_var& product, const CATIID& altered,
                 const CATBaseUnknown_var& replacement = nullptr)
      : product_(product), altered_(altered), replacement_(replacement) {}

  CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
    if (interfaceId != altered_) return product_->QueryInterface(interfaceId);
    return replacement_ ? replacement_->QueryInterface(interfaceId) : nullptr;
  }

private:
  CATBaseUnknown_var product_;
  const CATIID altered_;
  CATBaseUnknown_var replacement_;
};
