#pragma once

#include "CATBaseUnknown.h"

namespace standin {

// Tells whoever listens; see SetRedrawListener.
void TellRedraw(const CATBaseUnknown_var& product);

}  // namespace standin
