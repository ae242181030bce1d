#pragma once

#include "CATMetaClass.h"
#include "shell/Containment.h"

// What binds an extension of "ASMPRODUCT" to its interface.
namespace zrk::shell {

// Makes the extension of one product; null when it cannot be made.
template <class Extension>
CATBaseUnknown* CreateExtension(CATBaseUnknown& product) {
  return ContainedOr<CATBaseUnknown*>(nullptr, [&] { return new Extension(product); });
}

// Retrieved once and kept; null, and tried again with the next call, when the host cannot make it.
template <class Extension>
CATMetaClass* ExtensionMetaObject(const char* className) {
  static CATMetaClass* meta = nullptr;
  if (!meta) {
    meta = fct_RetrieveMetaObject(className, CATMetaClassKind::DataExtension, CATBaseUnknown::MetaObject(),
                                  "ASMPRODUCT", "External", &CreateExtension<Extension>);
  }
  return meta;
}

// The meta-class of the ties between the two, made with the first of them; null, and tried again with the
// next tie, when there is no memory for it.
template <class Interface, class Extension>
CATMetaClass* TieMetaClass() {
  static CATMetaClass* metaClass = nullptr;
  if (!metaClass) {
    metaClass = ContainedOr<CATMetaClass*>(nullptr, [] {
      CATMetaClass* const interfaceMeta = Interface::MetaObject();
      return interfaceMeta ? new CATMetaClass(Interface::ClassId(), interfaceMeta->Name(), interfaceMeta,
                                              Extension::MetaObject())
                           : nullptr;
    });
  }
  return metaClass;
}

// Makes a tie between the interface and an extension object; null when it cannot be made. A tie does
// without a meta-class when there is none.
template <class Tie, class Interface, class Extension>
CATBaseUnknown* CreateTie(CATBaseUnknown* extension) {
  return ContainedOr<CATBaseUnknown*>(nullptr, [&]() -> CATBaseUnknown* {
    return extension ? new Tie(extension, TieMetaClass<Interface, Extension>()) : nullptr;
  });
}

}  // namespace zrk::shell
