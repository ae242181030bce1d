#pragma once

#include <new>

#include "CATMetaClass.h"
#include "shell/Containment.h"

// What binds an extension of "ASMPRODUCT" to its interface.
namespace zrk::shell {

// Makes the extension of one product; null when it cannot be made.
template <class Extension>
CATBaseUnknown* CreateExtension(CATBaseUnknown& product) {
  return ContainedOr<CATBaseUnknown*>(nullptr, [&] { return new Extension(product); });
}

template <class Extension>
CATMetaClass* ExtensionMetaObject(const char* className) {
  return fct_RetrieveMetaObject(className, CATMetaClassKind::DataExtension, CATBaseUnknown::MetaObject(),
                                "ASMPRODUCT", "External", &CreateExtension<Extension>);
}

// Makes a tie between the interface and an extension object. The meta-class of such ties is made with the
// first of them; when there is no memory for it the tie does without, and the next one tries again.
template <class Tie, class Interface, class Extension>
CATBaseUnknown* CreateTie(CATBaseUnknown* extension) {
  static CATMetaClass* metaClass = nullptr;
  return ContainedOr<CATBaseUnknown*>(nullptr, [&]() -> CATBaseUnknown* {
    if (!extension) return nullptr;
    if (!metaClass) {
      CATMetaClass* const interfaceMeta = Interface::MetaObject();
      if (interfaceMeta) {
        metaClass = new CATMetaClass(Interface::ClassId(), interfaceMeta->Name(), interfaceMeta,
                                     Extension::MetaObject());
      }
    }
    return new Tie(extension, metaClass);
  });
}

}  // namespace zrk::shell
