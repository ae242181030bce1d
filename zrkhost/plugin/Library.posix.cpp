#include <dlfcn.h>

#include "plugin/Library.h"

namespace zrkhost {

LoadedLibrary LoadSharedLibrary(const std::filesystem::path& file) {
  LoadedLibrary library;
  library.Handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!library.Handle) library.Error = dlerror();
  return library;
}

void* FindSymbol(void* library, const char* name) {
  return dlsym(library, name);
}

}  // namespace zrkhost
