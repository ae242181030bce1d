#include "session/HostSession.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

#include "CATICkeParm.h"
#include "attributes/AttributeDictionary.h"
#include "base/CallError.h"
#include "core/HostPath.h"
#include "dialogs/MessageCatalogs.h"
#include "dialogs/UserInterface.h"
#include "session/ProductFacts.h"
#include "text/NativeText.h"

namespace zrkhost {

using standin::NativeFromUtf8;

namespace {

// Nothing happens to a product that cannot carry an instance.
void StartWith(const CATBaseUnknown_var& product, const AttributeValues& values) {
  const auto attributeClass = AttributeClassOfSession();
  const ZRKIAttExtendable_var extendable(product);
  if (!attributeClass || !extendable) return;
  if (!AttributeInstanceOf(product)) extendable->AddInstance(attributeClass, nullptr);
  const auto instance = AttributeInstanceOf(product);
  if (!instance) return;
  for (const auto& [name, value] : values) {
    const CATICkeParm_var parameter(instance->GetParameter(NativeFromUtf8(name).c_str()));
    if (parameter) parameter->Valuate(NativeFromUtf8(value).c_str());
  }
}

}  // namespace

HostSession::HostSession(const SessionDescription& description) {
  standin::SetApplicationFrame(true, description.Window);
  standin::ClearCatalogs();
  for (const auto& [catalog, texts] : description.Catalogs) {
    for (const auto& [key, text] : texts) {
      standin::SetCatalogText(NativeFromUtf8(catalog), NativeFromUtf8(key), NativeFromUtf8(text));
    }
  }
  InstallAttributes(description);
  BuildProducts(description);
  BuildPlaces(description);
}

HostSession::~HostSession() {
  places_.clear();
  standin::RemoveAttributeDictionary();
  standin::SetApplicationFrame(false, false);
  standin::ClearCatalogs();
}

void HostSession::InstallAttributes(const SessionDescription& description) {
  if (!description.Dictionary) {
    standin::RemoveAttributeDictionary();
    return;
  }
  std::vector<standin::AttributeClassDescription> classes;
  if (description.Class) {
    parameters_ = description.Class->Parameters;
    standin::AttributeClassDescription attributeClass;
    attributeClass.Package = kAttributePackage;
    attributeClass.Modifiable = description.Class->Modifiable;
    for (const auto& name : parameters_) attributeClass.Parameters.push_back(NativeFromUtf8(name));
    classes.push_back(std::move(attributeClass));
  }
  standin::InstallAttributeDictionary(classes);
}

void HostSession::BuildProducts(const SessionDescription& description) {
  const auto added = [](standin::AddResult result, const std::string& name) {
    if (result != standin::AddResult::Added) throw CallError("the host refuses the product \"" + name + "\"");
  };
  for (const auto& product : description.Products) {
    standin::ReferenceDescription reference;
    reference.Name = NativeFromUtf8(product.Name);
    if (product.Document) reference.Document = standin::HostPath(*product.Document);
    reference.Linkable = product.Linkable;
    reference.Extendable = product.Extendable;
    added(model_.AddReference(reference), product.Name);
  }
  for (const auto& product : description.Products) {
    for (const auto& child : product.Children) {
      std::optional<std::string> reference;
      if (child.Reference) reference = NativeFromUtf8(*child.Reference);
      added(model_.AddChild(NativeFromUtf8(product.Name), NativeFromUtf8(child.Name), reference), child.Name);
    }
  }
  for (const auto& product : description.Products) {
    if (product.Attributes) StartWith(model_.Reference(NativeFromUtf8(product.Name)), *product.Attributes);
  }
}

void HostSession::BuildPlaces(const SessionDescription& description) {
  std::unordered_map<std::string, const ProductDescription*> products;
  for (const auto& product : description.Products) products[product.Name] = &product;

  struct Pending {
    CATBaseUnknown_var Product;
    std::size_t Depth;
    // Absent when the reference is not loaded.
    const ProductDescription* Reference;
  };
  std::vector<Pending> pending;
  pending.push_back({model_.Reference(NativeFromUtf8(description.Root)), 0, products.at(description.Root)});
  std::vector<std::size_t> open;
  const auto closeDownTo = [&](std::size_t depth) {
    for (; open.size() > depth; open.pop_back()) places_[open.back()].End = places_.size();
  };
  while (!pending.empty()) {
    const Pending current = std::move(pending.back());
    pending.pop_back();
    closeDownTo(current.Depth);
    open.push_back(places_.size());
    const CATISpecObject_var node(current.Product);
    places_.push_back({current.Product, node->GetName().ConvertToChar(), current.Depth, 0});
    if (!current.Reference) continue;

    const auto children = ChildrenOf(current.Product);
    for (std::size_t i = children.size(); i-- > 0;) {
      const ChildDescription& child = current.Reference->Children[i];
      if (child.Attributes) StartWith(children[i], *child.Attributes);
      pending.push_back(
          {children[i], current.Depth + 1, child.Reference ? products.at(*child.Reference) : nullptr});
    }
  }
  closeDownTo(0);
}

const Place* HostSession::Find(std::string_view path) const {
  // Characters of `path` behind the name of a place, when the name stands at `from`.
  const auto behind = [&](std::size_t position, std::size_t from) -> std::optional<std::size_t> {
    const std::string& name = places_[position].Name;
    if (!path.substr(from).starts_with(name)) return std::nullopt;
    const std::size_t end = from + name.size();
    if (end < path.size() && path[end] != '/') return std::nullopt;
    return end;
  };
  struct Candidate {
    std::size_t Position;
    std::size_t End;
  };
  std::vector<Candidate> candidates;
  if (const auto end = behind(0, 0)) candidates.push_back({0, *end});
  while (!candidates.empty()) {
    const Candidate current = candidates.back();
    candidates.pop_back();
    if (current.End == path.size()) return &places_[current.Position];
    const auto firstNew = static_cast<std::ptrdiff_t>(candidates.size());
    for (std::size_t child = current.Position + 1; child < places_[current.Position].End;
         child = places_[child].End) {
      if (const auto end = behind(child, current.End + 1)) candidates.push_back({child, *end});
    }
    // The last one is looked at first.
    std::reverse(candidates.begin() + firstNew, candidates.end());
  }
  return nullptr;
}

}  // namespace zrkhost
