#include "session/ProductFacts.h"

#include <memory>

#include "CATICkeParm.h"
#include "CATILinkableObject.h"
#include "CATINavigateObject.h"
#include "ZRKAttPackageBaseServices.h"
#include "attributes/AttributeDictionary.h"
#include "base/Encoding.h"

namespace zrkhost {

CATIProduct_var ReferenceOf(const CATBaseUnknown_var& product) {
  const CATIProduct_var node(product);
  return node ? node->GetReferenceProduct() : nullptr;
}

std::optional<std::string> DocumentOf(const CATBaseUnknown_var& product) {
  const CATILinkableObject_var linkable(ReferenceOf(product));
  const CATDocument_var document = linkable ? linkable->GetDocument() : nullptr;
  if (!document) return std::nullopt;
  return document->StorageName().ConvertToChar();
}

std::vector<CATBaseUnknown_var> ChildrenOf(const CATBaseUnknown_var& product) {
  std::vector<CATBaseUnknown_var> children;
  const CATINavigateObject_var node(product);
  if (!node) return children;
  const std::unique_ptr<CATListValCATBaseUnknown_var> list(node->GetChildren());
  for (int i = 1; list && i <= list->Size(); ++i) children.push_back((*list)[i]);
  return children;
}

ZRKIAttClass_var AttributeClassOfSession() {
  const ZRKIAttDictionary_var dictionary = ZRKAttPackageBaseServices::GetDicoLookUp();
  return dictionary ? ZRKIAttClass_var(dictionary->LookUpClass(kAttributePackage)) : nullptr;
}

ZRKIAttInstance_var AttributeInstanceOf(const CATBaseUnknown_var& product) {
  const ZRKIAttExtendable_var extendable(product);
  const auto attributeClass = AttributeClassOfSession();
  return extendable && attributeClass ? ZRKIAttInstance_var(extendable->FindInstance(attributeClass))
                                      : nullptr;
}

std::optional<AttributeValues> AttributesOf(const CATBaseUnknown_var& product) {
  const auto instance = AttributeInstanceOf(product);
  if (!instance) return std::nullopt;
  AttributeValues values;
  for (const auto& name : standin::ParameterNames(instance)) {
    const CATICkeParm_var parameter(instance->GetParameter(name.c_str()));
    values.emplace_back(Utf8FromNative(name),
                        parameter ? Utf8FromNative(parameter->AsText().ConvertToChar()) : std::string());
  }
  return values;
}

}  // namespace zrkhost
