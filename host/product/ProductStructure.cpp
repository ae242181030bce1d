#include "product/ProductStructure.h"

#include <utility>

#include "product/Product.h"

namespace standin {

AddResult ProductStructure::AddReference(const ReferenceDescription& description) {
  auto& reference = references_[description.Name];
  if (reference) return AddResult::NameTaken;
  reference = std::make_unique<ReferenceProduct>();
  reference->Description = description;
  return AddResult::Added;
}

AddResult ProductStructure::AddChild(const std::string& parent, const std::string& name,
                                     const std::optional<std::string>& reference) {
  ReferenceProduct* const parentReference = Find(parent);
  if (!parentReference) return AddResult::UnknownParent;
  ReferenceProduct* const childReference = reference ? Find(*reference) : nullptr;
  if (reference && !childReference) return AddResult::UnknownReference;
  if (parentReference->ChildNames.contains(name)) return AddResult::NameTaken;
  if (childReference && Contains(*childReference, *parentReference)) return AddResult::ContainsItself;

  parentReference->ChildNames.insert(name);
  parentReference->Children.push_back({name, childReference});
  if (childReference) childReference->IsUsed = true;
  return AddResult::Added;
}

// Whether `contained` is the container itself or stands somewhere below it.
bool ProductStructure::Contains(ReferenceProduct& container, const ReferenceProduct& contained) {
  if (&container == &contained) return true;
  // What nobody uses stands below nothing; a structure built from the top or from the bottom is thus
  // never walked.
  if (!contained.IsUsed) return false;
  ++walks_;
  container.LastWalk = walks_;
  std::vector<const ReferenceProduct*> pending{&container};
  while (!pending.empty()) {
    const ReferenceProduct& reference = *pending.back();
    pending.pop_back();
    for (const ChildInstance& child : reference.Children) {
      if (child.Reference == &contained) return true;
      if (!child.Reference || child.Reference->LastWalk == walks_) continue;
      child.Reference->LastWalk = walks_;
      pending.push_back(child.Reference);
    }
  }
  return false;
}

ReferenceProduct* ProductStructure::Find(const std::string& name) const {
  const auto found = references_.find(name);
  return found == references_.end() ? nullptr : found->second.get();
}

Place& ProductStructure::RootOf(ReferenceProduct& reference) {
  if (!reference.Root) {
    reference.Root =
        &places_.emplace_back(Place{.Parent = nullptr, .Instance = nullptr, .Reference = &reference});
  }
  return *reference.Root;
}

const std::vector<Place*>& ProductStructure::ChildrenOf(Place& place) {
  if (place.Reference) {
    const auto& instances = place.Reference->Children;
    while (place.Children.size() < instances.size()) {
      const ChildInstance& instance = instances[place.Children.size()];
      place.Children.push_back(&places_.emplace_back(
          Place{.Parent = &place, .Instance = &instance, .Reference = instance.Reference}));
    }
  }
  return place.Children;
}

CATBaseUnknown_var ProductStructure::ObjectOf(Place& place) {
  if (place.Object) return CATBaseUnknown_var(place.Object);
  auto object = CATBaseUnknown_var::Adopt(new Product(shared_from_this(), place));
  if (object && keepsObjects_) objects_.push_back(object);
  return object;
}

void ProductStructure::End() {
  keepsObjects_ = false;
  // Moved out first, as what ends with an object may come back here.
  const auto objects = std::exchange(objects_, {});
}

}  // namespace standin
