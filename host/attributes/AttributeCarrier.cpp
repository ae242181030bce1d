#include "attributes/AttributeCarrier.h"

#include <utility>

#include "attributes/AttributeClass.h"
#include "attributes/AttributeInstance.h"
#include "framework/Misuse.h"

namespace standin {
namespace {

bool newInstancesRefused = false;

const ZRKIAttClass_var& NotNull(const ZRKIAttClass_var& attributeClass) {
  if (!attributeClass) EndOnMisuse("An attribute instance of no class was asked for.");
  return attributeClass;
}

}  // namespace

void RefuseNewInstances(bool refuse) {
  newInstancesRefused = refuse;
}

CATBaseUnknown_var AttributeCarrier::FindInstance(const ZRKIAttClass_var& attributeClass) {
  const CATBaseUnknown* const wanted = ClassBehind(NotNull(attributeClass));
  for (const Carried& carried : carried_) {
    if (carried.Class.Get() == wanted) return carried.Instance;
  }
  return nullptr;
}

HRESULT AttributeCarrier::AddInstance(const ZRKIAttClass_var& attributeClass,
                                      const ZRKIAttInstance_var& model) {
  AttributeClass* const description = ClassBehind(NotNull(attributeClass));
  if (!description || newInstancesRefused || FindInstance(attributeClass)) return E_FAIL;
  AttributeInstance* const instance = AttributeInstance::Create(description->Description());
  if (!instance) return E_FAIL;
  if (model) instance->CopyValues(model);
  carried_.push_back({CATBaseUnknown_var(description), CATBaseUnknown_var::Adopt(instance)});
  return S_OK;
}

void AttributeCarrier::RemoveInstance(const ZRKIAttClass_var& attributeClass) {
  const CATBaseUnknown* const unwanted = ClassBehind(NotNull(attributeClass));
  std::erase_if(carried_, [unwanted](const Carried& carried) { return carried.Class.Get() == unwanted; });
}

}  // namespace standin
