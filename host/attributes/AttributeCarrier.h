#pragma once

#include <vector>

#include "ZRKIAttributes.h"
#include "framework/Facet.h"

namespace standin {

// The part of an object that carries attribute instances.
class AttributeCarrier final : public Facet<ZRKIAttExtendable> {
public:
  using Facet::Facet;

  CATBaseUnknown_var FindInstance(const ZRKIAttClass_var& attributeClass) override;
  HRESULT AddInstance(const ZRKIAttClass_var& attributeClass, const ZRKIAttInstance_var& model) override;
  void RemoveInstance(const ZRKIAttClass_var& attributeClass) override;

private:
  struct Carried {
    // The class object itself, by which classes are told apart.
    CATBaseUnknown_var Class;
    CATBaseUnknown_var Instance;
  };

  std::vector<Carried> carried_;
};

}  // namespace standin
