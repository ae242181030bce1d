#include "attributes/AttributeClass.h"

namespace standin {

CATBaseUnknown* AttributeClass::QueryInterface(const CATIID& interfaceId) {
  CATBaseUnknown* part = nullptr;
  if (interfaceId == ZRKIAttClass::ClassId()) part = &class_;
  if (interfaceId == ZRKIAttStatus::ClassId()) part = &status_;
  if (part) part->AddRef();
  return part;
}

AttributeClass* ClassBehind(const ZRKIAttClass_var& attributeClass) {
  return attributeClass ? dynamic_cast<AttributeClass*>(attributeClass->GetImpl()) : nullptr;
}

}  // namespace standin
