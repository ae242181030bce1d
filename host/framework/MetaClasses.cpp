#include "framework/MetaClasses.h"

#include <map>
#include <string>

namespace {

struct Registry {
  std::map<std::string, CATMetaClass*, std::less<>> Classes;
  std::map<CATIID, CATMetaClass*> Interfaces;
  std::map<std::string, CATMetaClass*, std::less<>> InterfacesByName;
};

// Never destroyed: libraries that are unloaded after this one still hold meta-objects.
Registry& TheRegistry() {
  static auto* const registry = new Registry;
  return *registry;
}

const char* OrEmpty(const char* text) {
  return text ? text : "";
}

}  // namespace

CATMetaClass::CATMetaClass(const CATIID& interfaceId, const char* interfaceName, CATMetaClass* interfaceMeta,
                           CATMetaClass* extensionMeta)
    : name_(OrEmpty(interfaceName)),
      kind_(CATMetaClassKind::Tie),
      parent_(interfaceMeta),
      extension_(extensionMeta),
      interfaceId_(interfaceId) {}

CATMetaClass* fct_RetrieveMetaObject(const char* className, CATMetaClassKind kind, CATMetaClass* parent,
                                     const char* lateType, const char* access, CATExtensionFactory factory) {
  if (!className) return nullptr;
  auto& classes = TheRegistry().Classes;
  if (const auto known = classes.find(className); known != classes.end()) return known->second;

  auto* const meta = new CATMetaClass;
  if (!meta) return nullptr;
  meta->name_ = className;
  meta->kind_ = kind;
  meta->parent_ = parent;
  meta->lateType_ = OrEmpty(lateType);
  meta->access_ = OrEmpty(access);
  meta->factory_ = factory;
  classes.emplace(className, meta);
  return meta;
}

CATMetaClass* fct_RetrieveInterfaceMetaObject(const CATIID& interfaceId, const char* name) {
  if (!name) return nullptr;
  Registry& registry = TheRegistry();
  if (const auto known = registry.Interfaces.find(interfaceId); known != registry.Interfaces.end()) {
    return known->second;
  }
  auto* const meta = new CATMetaClass;
  if (!meta) return nullptr;
  meta->name_ = name;
  meta->kind_ = CATMetaClassKind::Interface;
  meta->parent_ = CATBaseUnknown::MetaObject();
  meta->interfaceId_ = interfaceId;
  registry.Interfaces.emplace(interfaceId, meta);
  registry.InterfacesByName.emplace(name, meta);
  return meta;
}

CATMetaClass* standin::FindInterface(std::string_view name) {
  const auto& byName = TheRegistry().InterfacesByName;
  const auto known = byName.find(name);
  return known == byName.end() ? nullptr : known->second;
}
