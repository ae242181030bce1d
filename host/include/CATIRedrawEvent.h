#pragma once

#include "CATMetaClass.h"

// Lets an object ask for itself to be drawn anew, in the tree and in the view.
class CATIRedrawEvent : public CATBaseUnknown {
  CATDeclareInterface

  virtual void Redraw() = 0;
};

using CATIRedrawEvent_var = CATHandle<CATIRedrawEvent>;
