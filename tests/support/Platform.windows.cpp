#include "support/Platform.h"

#include <windows.h>

#include <array>

const char kPathListSeparator = ';';

std::filesystem::path ExecutableFolder() {
  std::array<wchar_t, 4096> buffer{};
  const DWORD length = GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
  return std::filesystem::path(std::wstring(buffer.data(), length)).parent_path();
}
