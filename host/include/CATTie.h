#pragma once

#include "CATMetaClass.h"

// What a tie is made of. A tie has its interface's slots, and each forwards to the extension, which is
// the tie's context. It holds a reference on the object behind the extension, so an interface stays
// good for as long as it is held.
template <class Interface>
class CATTie : public Interface {
public:
  // `metaClass` describes the tie and may be null.
  CATTie(CATBaseUnknown* extension, CATMetaClass* metaClass) : context_(extension), metaClass_(metaClass) {}

  CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
    return context_->QueryInterface(interfaceId);
  }
  CATBaseUnknown* GetImpl() override { return context_->GetImpl(); }
  CATMetaClass* TieMetaClass() const { return metaClass_; }

protected:
  CATBaseUnknown* TieContext() const { return context_.Get(); }

private:
  CATBaseUnknown_var context_;
  CATMetaClass* metaClass_;
};
