#include "component/shell/ExportedSurface.h"

#include <windows.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <vector>

#include "support/Platform.h"

namespace {

struct LibraryEnder {
  void operator()(HINSTANCE__* library) const { FreeLibrary(library); }
};

// A library as it lies in memory, mapped but not run. Places in it are given as distances from its start.
class MappedLibrary {
public:
  explicit MappedLibrary(const std::filesystem::path& path)
      : library_(LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE)) {
    if (!library_) throw std::runtime_error("the library cannot be mapped");
    // The handle's two lowest bits only mark what it was mapped for.
    start_ = reinterpret_cast<const std::byte*>(reinterpret_cast<std::uintptr_t>(library_.get()) &
                                                ~std::uintptr_t{3});
  }

  template <class Item>
  const Item* At(DWORD distance) const {
    return reinterpret_cast<const Item*>(start_ + distance);
  }

private:
  std::unique_ptr<HINSTANCE__, LibraryEnder> library_;
  const std::byte* start_ = nullptr;
};

}  // namespace

std::set<std::string> ExportedNames() {
  const MappedLibrary library(ExecutableFolder() / ZRK_COMPONENT_LIBRARY);
  const auto headers =
      library.At<IMAGE_NT_HEADERS>(static_cast<DWORD>(library.At<IMAGE_DOS_HEADER>(0)->e_lfanew));
  const IMAGE_DATA_DIRECTORY& place = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
  const auto exports = library.At<IMAGE_EXPORT_DIRECTORY>(place.VirtualAddress);
  const DWORD* const functions = library.At<DWORD>(exports->AddressOfFunctions);
  const DWORD* const textPlaces = library.At<DWORD>(exports->AddressOfNames);
  const WORD* const ordinals = library.At<WORD>(exports->AddressOfNameOrdinals);

  std::set<std::string> names;
  std::vector<bool> isNamed(exports->NumberOfFunctions);
  for (DWORD i = 0; i < exports->NumberOfNames; ++i) {
    names.insert(library.At<char>(textPlaces[i]));
    isNamed.at(ordinals[i]) = true;
  }
  for (DWORD i = 0; i < exports->NumberOfFunctions; ++i) {
    if (functions[i] != 0 && !isNamed[i]) names.insert("number " + std::to_string(exports->Base + i));
  }
  return names;
}
