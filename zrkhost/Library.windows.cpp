#include "Library.h"

#include <windows.h>

#include <system_error>

namespace zrkhost {

LoadedLibrary LoadSharedLibrary(const std::filesystem::path& file) {
  LoadedLibrary library;
  library.Handle = LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (!library.Handle) library.Error = std::system_category().message(static_cast<int>(GetLastError()));
  return library;
}

void* FindSymbol(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

}  // namespace zrkhost
