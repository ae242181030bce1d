#include "framework/Dictionary.h"

#include <string>
#include <vector>

#include "framework/FrameworkControl.h"

namespace standin {
namespace {

// Never destroyed: objects and libraries that end after this one still use them.
std::vector<DictionaryEntry>& Entries() {
  static auto* const entries = new std::vector<DictionaryEntry>;
  return *entries;
}

}  // namespace

const TieBinding* LateType::Find(const CATIID& interfaceId) const {
  const auto found = bindings_.find(interfaceId);
  return found == bindings_.end() ? nullptr : &found->second;
}

bool LateType::Bind(const CATIID& interfaceId, const TieBinding& binding) {
  return bindings_.emplace(interfaceId, binding).second;
}

LateType& LateTypeNamed(std::string_view name) {
  static auto* const types = new std::map<std::string, LateType, std::less<>>;
  auto found = types->find(name);
  if (found == types->end()) found = types->emplace(std::string(name), LateType()).first;
  return found->second;
}

std::vector<DictionaryEntry> DictionaryEntries() {
  return Entries();
}

}  // namespace standin

void CATFillDictionary(CATMetaClass* extension, CATMetaClass* interfaceMeta, CATTieCreator creator,
                       const char* library, int flag) {
  if (!extension || extension->Kind() != CATMetaClassKind::DataExtension) return;
  if (!interfaceMeta || interfaceMeta->Kind() != CATMetaClassKind::Interface) return;
  standin::LateType& type = standin::LateTypeNamed(extension->LateType());
  if (!type.Bind(interfaceMeta->InterfaceId(), {extension, creator})) return;
  standin::Entries().push_back(
      {extension->Name(), interfaceMeta->Name(), extension->LateType(), library ? library : "", flag});
}
