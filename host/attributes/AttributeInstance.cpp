#include "attributes/AttributeInstance.h"

#include <utility>

namespace standin {
namespace {

class AttributeParameter final : public OneInterface<CATICkeParm> {
public:
  void Valuate(const CATUnicodeString& text) override {
    text_ = text;
    hasValue_ = true;
  }
  bool HasValue() override { return hasValue_; }
  CATUnicodeString AsText() override { return text_; }

private:
  CATUnicodeString text_;
  bool hasValue_ = false;
};

}  // namespace

AttributeInstance* AttributeInstance::Create(const AttributeClassDescription& description) {
  auto* const instance = new AttributeInstance;
  if (!instance) return nullptr;
  for (const std::string& name : description.Parameters) {
    auto value = CATICkeParm_var::Adopt(new AttributeParameter);
    if (!value) {
      instance->Release();
      return nullptr;
    }
    instance->parameters_.push_back({name, std::move(value)});
  }
  return instance;
}

CATBaseUnknown_var AttributeInstance::GetParameter(const CATUnicodeString& name) {
  for (const Parameter& parameter : parameters_) {
    if (parameter.Name == name.ConvertToChar()) return parameter.Value;
  }
  return nullptr;
}

std::vector<std::string> AttributeInstance::Names() const {
  std::vector<std::string> names;
  for (const Parameter& parameter : parameters_) names.push_back(parameter.Name);
  return names;
}

void AttributeInstance::CopyValues(const ZRKIAttInstance_var& model) {
  for (const Parameter& parameter : parameters_) {
    const CATICkeParm_var value(model->GetParameter(parameter.Name.c_str()));
    if (value && value->HasValue()) parameter.Value->Valuate(value->AsText());
  }
}

}  // namespace standin
