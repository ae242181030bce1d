#pragma once

#include <functional>

#include "CATBaseUnknown.h"

namespace zrk::product {

// What a walk does with one product; the walk goes below the product when it answers true.
using ProductVisitor = std::function<bool(const CATBaseUnknown_var& product)>;

// Visits a product and then, depth first and in order, those below it (CATINavigateObject). A product
// that is used several times is visited once per use. Deep trees cost memory, not stack.
void WalkProductTree(const CATBaseUnknown_var& root, const ProductVisitor& visit);

}  // namespace zrk::product
