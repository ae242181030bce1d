#include "product/ProductModel.h"

#include <utility>

#include "product/Product.h"
#include "product/ProductStructure.h"

namespace standin {

ProductModel::ProductModel() : structure_(std::make_shared<ProductStructure>()) {}

ProductModel::ProductModel(ProductModel&&) noexcept = default;

ProductModel& ProductModel::operator=(ProductModel&& other) noexcept {
  if (this != &other) {
    End();
    structure_ = std::move(other.structure_);
  }
  return *this;
}

ProductModel::~ProductModel() {
  End();
}

void ProductModel::End() {
  if (structure_) structure_->End();
}

AddResult ProductModel::AddReference(const ReferenceDescription& description) {
  return structure_->AddReference(description);
}

AddResult ProductModel::AddChild(const std::string& parent, const std::string& name,
                                 const std::optional<std::string>& reference) {
  return structure_->AddChild(parent, name, reference);
}

CATBaseUnknown_var ProductModel::Reference(const std::string& name) const {
  ReferenceProduct* const reference = structure_->Find(name);
  return reference ? structure_->ObjectOf(structure_->RootOf(*reference)) : nullptr;
}

std::string ProductPath(const CATBaseUnknown_var& product) {
  const Product* const object = ProductBehind(product);
  if (!object) return {};
  std::vector<const Place*> places;
  for (const Place* place = &object->GetPlace(); place; place = place->Parent) places.push_back(place);
  std::string path = places.back()->Reference->Description.Name;
  for (auto place = places.rbegin() + 1; place != places.rend(); ++place)
    path += "/" + (*place)->Instance->Name;
  return path;
}

std::string ReferenceName(const CATBaseUnknown_var& product) {
  const Product* const object = ProductBehind(product);
  const ReferenceProduct* const reference = object ? object->GetPlace().Reference : nullptr;
  return reference ? reference->Description.Name : std::string();
}

}  // namespace standin
