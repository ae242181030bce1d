#pragma once

#include <string_view>

#include "CATMetaClass.h"

namespace standin {

// The interface of that name whose meta-object was retrieved first; null when there is none.
CATMetaClass* FindInterface(std::string_view name);

}  // namespace standin
