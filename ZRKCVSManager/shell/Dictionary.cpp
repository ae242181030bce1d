// The meta-objects of the extensions, and their entries in the host's dictionary, which are made when the
// library is loaded.

#include "CATDictionary.h"
#include "ZRKICVS.h"
#include "ZRKICVSManager.h"
#include "ZRKICVSModifiable.h"
#include "manager/ZRKECVSManager.h"
#include "shell/Binding.h"
#include "shell/Ties.h"
#include "shell/ZRKECVS.h"
#include "shell/ZRKECVSModifiable.h"

using zrk::shell::ContainedOr;
using zrk::shell::ExtensionMetaObject;

CATMetaClass* ZRKECVS::MetaObject() {
  return ExtensionMetaObject<ZRKECVS>("ZRKECVS");
}

CATMetaClass* ZRKECVSManager::MetaObject() {
  return ExtensionMetaObject<ZRKECVSManager>("ZRKECVSManager");
}

CATMetaClass* ZRKECVSModifiable::MetaObject() {
  return ExtensionMetaObject<ZRKECVSModifiable>("ZRKECVSModifiable");
}

namespace {

constexpr int kOwnEntry = 1;

// False when the host could not take the entry; the other interfaces are there all the same.
template <class Extension, class Interface>
bool Enter(CATBaseUnknown* (*createTie)(CATBaseUnknown*)) {
  return ContainedOr(false, [&] {
    CATFillDictionary(Extension::MetaObject(), Interface::MetaObject(), createTie, nullptr, kOwnEntry);
    return true;
  });
}

[[maybe_unused]] const bool kEntered[] = {
    Enter<ZRKECVS, ZRKICVS>(CreateTIEZRKICVSZRKECVS),
    Enter<ZRKECVSManager, ZRKICVSManager>(CreateTIEZRKICVSManagerZRKECVSManager),
    Enter<ZRKECVSModifiable, ZRKICVSModifiable>(CreateTIEZRKICVSModifiableZRKECVSModifiable),
};

}  // namespace
