#pragma once

#include "attributes/AttributeDictionary.h"
#include "framework/Facet.h"
#include "framework/Misuse.h"

namespace standin {

// A class of the dictionary: one object that is the class and has its say in who may modify.
class AttributeClass final : public CATBaseUnknown {
public:
  explicit AttributeClass(const AttributeClassDescription& description) : description_(description) {}

  CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override;

  const AttributeClassDescription& Description() const { return description_; }

private:
  struct ClassPart final : Facet<ZRKIAttClass> {
    explicit ClassPart(AttributeClass& self) : Facet(self), Self(self) {}
    CATUnicodeString GetPackageName() override { return Self.description_.Package.c_str(); }
    AttributeClass& Self;
  };
  struct StatusPart final : Facet<ZRKIAttStatus> {
    explicit StatusPart(AttributeClass& self) : Facet(self), Self(self) {}
    unsigned char IsModifiable(const CATISpecObject_var& object) override {
      if (!object) EndOnMisuse("Nothing was asked about whether it may be modified.");
      return Self.description_.Modifiable;
    }
    AttributeClass& Self;
  };

  const AttributeClassDescription description_;
  ClassPart class_{*this};
  StatusPart status_{*this};
};

// The class behind a handle; null when it is null or leads to something else.
AttributeClass* ClassBehind(const ZRKIAttClass_var& attributeClass);

}  // namespace standin
