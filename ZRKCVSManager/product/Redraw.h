#pragma once

#include "CATBaseUnknown.h"

namespace zrk::product {

// Has the object drawn anew; nothing happens for one that cannot be.
void Redraw(const CATBaseUnknown_var& object);

}  // namespace zrk::product
