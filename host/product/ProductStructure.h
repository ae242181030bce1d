#pragma once

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "CATDocument.h"
#include "product/ProductModel.h"

namespace standin {

class Product;
struct Place;
struct ReferenceProduct;

// A child instance that a reference product holds.
struct ChildInstance {
  std::string Name;
  // Null: the reference is not loaded.
  ReferenceProduct* Reference;
};

struct ReferenceProduct {
  ReferenceDescription Description;
  // Stays where it is while it grows: places point into it.
  std::deque<ChildInstance> Children;
  std::unordered_set<std::string> ChildNames;
  // Whether it is the child of another.
  bool IsUsed = false;
  // The walk that looked at it last.
  unsigned LastWalk = 0;
  // Its own place, as a root.
  Place* Root = nullptr;
  CATDocument_var Document;
};

// A place in the tree below a reference product, or that product itself.
struct Place {
  // Both null for a reference product.
  Place* Parent;
  const ChildInstance* Instance;
  // Null: the reference is not loaded.
  ReferenceProduct* Reference;
  // Of the reference's children those reached already, in order.
  std::vector<Place*> Children{};
  // The object that stands for it; null while there is none.
  Product* Object = nullptr;
};

// The references of a session, and the places reached so far with their objects. Everything lies in flat
// containers, so that a deep tree ends without recursion. Objects share the structure, which thus
// outlives the model while one of them is held.
class ProductStructure : public std::enable_shared_from_this<ProductStructure> {
public:
  AddResult AddReference(const ReferenceDescription& description);
  AddResult AddChild(const std::string& parent, const std::string& name,
                     const std::optional<std::string>& reference);

  // Null when there is none of that name.
  ReferenceProduct* Find(const std::string& name) const;
  Place& RootOf(ReferenceProduct& reference);
  const std::vector<Place*>& ChildrenOf(Place& place);
  // The object of a place, made when there is none; null when memory is exhausted.
  CATBaseUnknown_var ObjectOf(Place& place);

  // Gives up the objects; from here on one lives only as long as a handle on it.
  void End();

private:
  bool Contains(ReferenceProduct& container, const ReferenceProduct& contained);

  std::map<std::string, std::unique_ptr<ReferenceProduct>> references_;
  std::deque<Place> places_;
  std::deque<CATBaseUnknown_var> objects_;
  bool keepsObjects_ = true;
  unsigned walks_ = 0;
};

}  // namespace standin
