#include "attributes/AttributeDictionary.h"

#include <utility>

#include "ZRKAttPackageBaseServices.h"
#include "attributes/AttributeClass.h"
#include "attributes/AttributeInstance.h"
#include "framework/Facet.h"

namespace standin {
namespace {

class Dictionary final : public OneInterface<ZRKIAttDictionary> {
public:
  explicit Dictionary(std::vector<CATBaseUnknown_var> classes) : classes_(std::move(classes)) {}

  CATBaseUnknown_var LookUpClass(const CATUnicodeString& package) override {
    for (const CATBaseUnknown_var& known : classes_) {
      if (ZRKIAttClass_var(known)->GetPackageName() == package) return known;
    }
    return nullptr;
  }

private:
  const std::vector<CATBaseUnknown_var> classes_;
};

// Never destroyed, as it may be asked for until the process has ended.
ZRKIAttDictionary_var& SessionDictionary() {
  static auto* const dictionary = new ZRKIAttDictionary_var;
  return *dictionary;
}

}  // namespace

void InstallAttributeDictionary(const std::vector<AttributeClassDescription>& classes) {
  std::vector<CATBaseUnknown_var> objects;
  for (const AttributeClassDescription& description : classes) {
    if (auto object = CATBaseUnknown_var::Adopt(new AttributeClass(description))) objects.push_back(object);
  }
  SessionDictionary() = ZRKIAttDictionary_var::Adopt(new Dictionary(std::move(objects)));
}

void RemoveAttributeDictionary() {
  SessionDictionary() = nullptr;
}

std::vector<std::string> ParameterNames(const ZRKIAttInstance_var& instance) {
  const auto* const known = instance ? dynamic_cast<AttributeInstance*>(instance->GetImpl()) : nullptr;
  return known ? known->Names() : std::vector<std::string>();
}

}  // namespace standin

ZRKIAttDictionary_var ZRKAttPackageBaseServices::GetDicoLookUp() {
  return standin::SessionDictionary();
}
