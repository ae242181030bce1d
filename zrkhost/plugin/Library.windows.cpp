#include "plugin/Library.h"

#include <windows.h>

namespace zrkhost {

LoadedLibrary LoadSharedLibrary(const std::filesystem::path& file) {
  LoadedLibrary library;
  library.Handle = LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (!library.Handle) library.Error = "Windows error " + std::to_string(GetLastError());
  return library;
}

void* FindSymbol(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

}  // namespace zrkhost
