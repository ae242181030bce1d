#include "product/StatusInstance.h"

namespace zrk::product {

ZRKIAttInstance_var FindInstance(const CATBaseUnknown_var& object, const ZRKIAttClass_var& attributeClass) {
  const ZRKIAttExtendable_var extendable(object);
  if (!extendable || !attributeClass) return nullptr;
  return extendable->FindInstance(attributeClass);
}

ZRKIAttInstance_var FindOrAddInstance(const CATBaseUnknown_var& object,
                                      const ZRKIAttClass_var& attributeClass) {
  const ZRKIAttExtendable_var extendable(object);
  if (!extendable || !attributeClass) return nullptr;
  const ZRKIAttInstance_var instance(extendable->FindInstance(attributeClass));
  if (instance) return instance;
  extendable->AddInstance(attributeClass, nullptr);
  return extendable->FindInstance(attributeClass);
}

void RemoveInstance(const CATBaseUnknown_var& object, const ZRKIAttClass_var& attributeClass) {
  const ZRKIAttExtendable_var extendable(object);
  if (extendable && attributeClass) extendable->RemoveInstance(attributeClass);
}

CATICkeParm_var GetParameter(const ZRKIAttInstance_var& instance, const char* name) {
  if (!instance) return nullptr;
  return instance->GetParameter(name);
}

void SetParameter(const ZRKIAttInstance_var& instance, const char* name, const CATUnicodeString& value) {
  if (const CATICkeParm_var parameter = GetParameter(instance, name)) parameter->Valuate(value);
}

void WriteStatusValues(const CATBaseUnknown_var& object, const ZRKIAttClass_var& attributeClass,
                       const StatusValues& values) {
  const ZRKIAttInstance_var instance = FindOrAddInstance(object, attributeClass);
  SetParameter(instance, "Revision", values.Revision);
  SetParameter(instance, "Status", values.Status);
  SetParameter(instance, "Release", values.Release);
  SetParameter(instance, "Comment", values.Comment);
}

ProductDocument ReachDocumentOrClear(const CATBaseUnknown_var& object,
                                     const ZRKIAttClass_var& attributeClass) {
  ProductDocument document = ReachDocument(object);
  if (document.State == DocumentState::NotLinkable) RemoveInstance(object, attributeClass);
  return document;
}

}  // namespace zrk::product
