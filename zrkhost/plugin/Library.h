#pragma once

#include <filesystem>
#include <string>

// Shared libraries that are loaded while the program runs.
namespace zrkhost {

struct LoadedLibrary {
  // Null when it could not be loaded.
  void* Handle = nullptr;
  // Why not, in the system's words and the native encoding.
  std::string Error;
};

// `file` is absolute. A library stays loaded until the program ends: the host's dictionary points into it.
LoadedLibrary LoadSharedLibrary(const std::filesystem::path& file);

// Address of an exported symbol; null when the library has none of that name.
void* FindSymbol(void* library, const char* name);

}  // namespace zrkhost
