#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "CATBaseUnknown.h"

// Control of the stand-in: the product structure of the session. Nothing here is part of the host's
// public headers; a component library never sees it.
namespace standin {

struct ReferenceDescription {
  std::string Name;
  // Full path that the document is stored in, separated by "\"; absent: the product is linkable but has
  // no document.
  std::optional<std::string> Document;
  bool Linkable = true;
  // Whether the product, and every instance of it, can carry attribute instances.
  bool Extendable = true;
};

class ProductStructure;

enum class AddResult { Added, NameTaken, UnknownParent, UnknownReference, ContainsItself };

// The reference products of a session and how they are built from each other. Every place in the tree
// below a reference is a product object of its own, made when it is first reached; objects live as long
// as the model or a handle on them, whichever is longer.
class ProductModel {
public:
  ProductModel();
  ProductModel(ProductModel&&) noexcept;
  ProductModel& operator=(ProductModel&&) noexcept;
  ~ProductModel();

  AddResult AddReference(const ReferenceDescription& description);
  // Adds to the reference product `parent` a child instance of `reference`; nullopt: of a reference that
  // is not loaded. Refuses a child that would make a product contain itself, directly or not.
  AddResult AddChild(const std::string& parent, const std::string& name,
                     const std::optional<std::string>& reference);

  // The reference product of that name; null when there is none.
  CATBaseUnknown_var Reference(const std::string& name) const;

private:
  void End();

  std::shared_ptr<ProductStructure> structure_;
};

// Of any object of the product structure, by whatever interface: "car" for a reference product, "car/axle.1"
// for the place of an instance below it. Empty for any other object.
std::string ProductPath(const CATBaseUnknown_var& product);
// Name of the reference product at that place; empty when the reference is not loaded.
std::string ReferenceName(const CATBaseUnknown_var& product);

// Hears of every redraw that a product asks for. An empty function: nobody listens.
using RedrawListener = std::function<void(const CATBaseUnknown_var& product)>;
void SetRedrawListener(RedrawListener listener);

// Hears of every work mode set on a product.
using WorkModeListener = std::function<void(const CATBaseUnknown_var& product, int mode)>;
void SetWorkModeListener(WorkModeListener listener);

}  // namespace standin
