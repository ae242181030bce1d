#pragma once

#include "CATMetaClass.h"

// Marks an object that version control knows; every product is one, and having the interface is its whole
// meaning. Whether the object may be modified is asked with IsCVSModifiable, and whether it has a document
// that can be under version control with IsCVSable.
class ZRKICVSModifiable : public CATBaseUnknown {
  CATDeclareInterface
};

using ZRKICVSModifiable_var = CATHandle<ZRKICVSModifiable>;
