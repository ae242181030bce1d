#include "product/ProductTree.h"

#include <memory>
#include <vector>

#include "CATINavigateObject.h"
#include "CATISpecObject.h"

namespace zrk::product {
namespace {

// The children of one product and how many of them were visited.
struct Level {
  std::unique_ptr<const CATListValCATBaseUnknown_var> Children;
  int Visited = 0;
};

Level ChildrenOf(const CATBaseUnknown_var& product) {
  const CATINavigateObject_var navigation(product);
  if (!navigation) return {};
  return {std::unique_ptr<const CATListValCATBaseUnknown_var>(navigation->GetChildren()), 0};
}

}  // namespace

void WalkProductTree(const CATBaseUnknown_var& root, const ProductVisitor& visit) {
  std::vector<Level> levels;
  const auto visitAndDescend = [&](const CATBaseUnknown_var& product) {
    if (!visit(product)) return;
    Level below = ChildrenOf(product);
    if (below.Children) levels.push_back(std::move(below));
  };
  visitAndDescend(root);
  while (!levels.empty()) {
    Level& level = levels.back();
    if (level.Visited == level.Children->Size()) {
      levels.pop_back();
    } else {
      const CATISpecObject_var child((*level.Children)[++level.Visited]);
      visitAndDescend(child);
    }
  }
}

}  // namespace zrk::product
