#include "call/Surroundings.h"

#include <windows.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace zrkhost {

std::filesystem::path ProgramFile() {
  std::vector<wchar_t> name(MAX_PATH);
  while (GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())) == name.size()) {
    name.resize(name.size() * 2);
  }
  return name.data();
}

std::string LibraryFileName(const std::string& name) {
  return name + ".dll";
}

bool AppendToPath(const std::filesystem::path& folder) {
  if (folder.native().find(L';') != std::wstring::npos) return false;
  const wchar_t* path = _wgetenv(L"PATH");
  const std::wstring before = path && *path ? path + std::wstring(L";") : std::wstring();
  _wputenv_s(L"PATH", (before + folder.wstring()).c_str());
  return true;
}

}  // namespace zrkhost
