#pragma once

#include "CATBaseUnknown.h"

// An object that has none of a product's interfaces.
class NoProduct : public CATBaseUnknown {
public:
  ~NoProduct() override = default;
};
