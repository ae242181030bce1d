#pragma once

#include "windows/WindowsControl.h"

namespace standin {

// Every function that can be made to fail asks this once in each call: true when this call is to fail.
bool TakesFault(WindowsCall call);

}  // namespace standin
