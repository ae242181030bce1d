#pragma once

#include <string>
#include <vector>

#include "CATICkeParm.h"
#include "attributes/AttributeClass.h"
#include "framework/Facet.h"

namespace standin {

// An instance of a class: its parameters with their values. It may outlive the object that it was put
// onto, and each parameter may outlive it.
class AttributeInstance final : public OneInterface<ZRKIAttInstance> {
public:
  // Null when memory is exhausted.
  static AttributeInstance* Create(const AttributeClassDescription& description);

  CATBaseUnknown_var GetParameter(const CATUnicodeString& name) override;

  std::vector<std::string> Names() const;
  // Takes the values over that `model` has for parameters of the same names.
  void CopyValues(const ZRKIAttInstance_var& model);

private:
  struct Parameter {
    std::string Name;
    CATICkeParm_var Value;
  };

  AttributeInstance() = default;

  std::vector<Parameter> parameters_;
};

}  // namespace standin
