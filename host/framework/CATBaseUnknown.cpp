#include "CATBaseUnknown.h"

#include "CATMetaClass.h"

namespace {

// References that an object has while it ends, so that handles taken on it and given back by what ends
// with it do not end it a second time.
constexpr unsigned long kEnding = 1ul << 30;

}  // namespace

CATBaseUnknown::CATBaseUnknown(CATBaseUnknown& extended) : extended_(&extended) {}

CATBaseUnknown::~CATBaseUnknown() = default;

unsigned long CATBaseUnknown::AddRef() {
  return extended_ ? extended_->AddRef() : ++references_;
}

unsigned long CATBaseUnknown::Release() {
  if (extended_) return extended_->Release();
  if (--references_ > 0) return references_;
  references_ = kEnding;
  delete this;
  return 0;
}

CATBaseUnknown* CATBaseUnknown::QueryInterface(const CATIID& interfaceId) {
  return extended_ ? extended_->QueryInterface(interfaceId) : nullptr;
}

CATBaseUnknown* CATBaseUnknown::GetImpl() {
  return extended_ ? extended_->GetImpl() : this;
}

CATMetaClass* CATBaseUnknown::MetaObject() {
  return fct_RetrieveMetaObject("CATBaseUnknown", CATMetaClassKind::Implementation, nullptr, "", "", nullptr);
}
