#pragma once

#include "CATTie.h"

// What stands behind a tie, which the framework shows to ties alone.

template <class Interface>
CATMetaClass* MetaClassOf(const CATHandle<Interface>& tie) {
  return static_cast<const CATTie<Interface>*>(tie.Get())->TieMetaClass();
}

template <class Interface>
CATBaseUnknown* ExtensionBehind(const CATHandle<Interface>& tie) {
  struct Opened : CATTie<Interface> {
    static CATBaseUnknown* ContextOf(const CATTie<Interface>& of) { return (of.*&Opened::TieContext)(); }
  };
  return Opened::ContextOf(static_cast<const CATTie<Interface>&>(*tie));
}
