// The library is loaded into a host that cannot take its entries. Linux only: there this program's own
// CATFillDictionary goes before the host's, for its own objects and for the library.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "CATDictionary.h"
#include "support/Platform.h"

namespace {

bool dictionaryIsFull = false;

// Ends with 0 when the library could be loaded.
[[noreturn]] void LoadWithFullDictionary() {
  dictionaryIsFull = true;
  const std::string library = (ExecutableFolder() / ZRK_COMPONENT_LIBRARY).string();
  std::_Exit(dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL) ? 0 : 1);
}

}  // namespace

void CATFillDictionary(CATMetaClass* extension, CATMetaClass* interfaceMeta, CATTieCreator creator,
                       const char* library, int flag) {
  if (dictionaryIsFull) throw std::bad_alloc();
  void* const hosts = dlsym(RTLD_NEXT, "_Z17CATFillDictionaryP12CATMetaClassS0_PFP14CATBaseUnknownS2_EPKci");
  reinterpret_cast<decltype(&CATFillDictionary)>(hosts)(extension, interfaceMeta, creator, library, flag);
}

TEST(LoadingDeathTest, GoesOnWhenTheDictionaryTakesNoEntry) {
  EXPECT_EXIT(LoadWithFullDictionary(), testing::ExitedWithCode(0), "");
}
