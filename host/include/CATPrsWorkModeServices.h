#pragma once

#include "CATIProduct.h"

class CATPrsWorkModeServices {
public:
  // Work mode of a product, which is not null: 1 loads what the structure below it needs to be walked.
  static void SetWorkMode(const CATIProduct_var& product, int mode);
};
