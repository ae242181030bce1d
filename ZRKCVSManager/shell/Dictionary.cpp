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

using zrk::shell::ExtensionMetaObject;

CATMetaClass* ZRKECVS::MetaObject() {
  static CATMetaClass* const meta = ExtensionMetaObject<ZRKECVS>("ZRKECVS");
  return meta;
}

CATMetaClass* ZRKECVSManager::MetaObject() {
  static CATMetaClass* const meta = ExtensionMetaObject<ZRKECVSManager>("ZRKECVSManager");
  return meta;
}

CATMetaClass* ZRKECVSModifiable::MetaObject() {
  static CATMetaClass* const meta = ExtensionMetaObject<ZRKECVSModifiable>("ZRKECVSModifiable");
  return meta;
}

namespace {

constexpr int kOwnEntry = 1;

[[maybe_unused]] const bool dictionaryFilled = [] {
  CATFillDictionary(ZRKECVS::MetaObject(), ZRKICVS::MetaObject(), CreateTIEZRKICVSZRKECVS, nullptr,
                    kOwnEntry);
  CATFillDictionary(ZRKECVSManager::MetaObject(), ZRKICVSManager::MetaObject(),
                    CreateTIEZRKICVSManagerZRKECVSManager, nullptr, kOwnEntry);
  CATFillDictionary(ZRKECVSModifiable::MetaObject(), ZRKICVSModifiable::MetaObject(),
                    CreateTIEZRKICVSModifiableZRKECVSModifiable, nullptr, kOwnEntry);
  return true;
}();

}  // namespace
