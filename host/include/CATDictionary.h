#pragma once

#include "CATMetaClass.h"

// Builds the tie through which callers reach an extension by an interface. The tie has one reference,
// which is the caller's; null when it cannot be built.
using CATTieCreator = CATBaseUnknown* (*)(CATBaseUnknown* extension);

// Enters into the framework's dictionary that objects of the extension's late type have the interface,
// through ties made by `creator`. A component library calls it while it is being loaded, once for each
// of its extensions.
//
// `library` names the library to load for the creator, null when the caller is that library; `flag` is
// 1 for an entry made by the library itself. Of two entries for the same type and interface the first
// holds.
void CATFillDictionary(CATMetaClass* extension, CATMetaClass* interfaceMeta, CATTieCreator creator,
                       const char* library, int flag);
