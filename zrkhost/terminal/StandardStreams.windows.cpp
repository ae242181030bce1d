#include "terminal/StandardInput.h"

#include <windows.h>

namespace zrkhost {

namespace {

// False for what is no file on a disk.
bool IdentityOf(HANDLE file, BY_HANDLE_FILE_INFORMATION& identity) {
  return GetFileType(file) == FILE_TYPE_DISK && GetFileInformationByHandle(file, &identity);
}

}  // namespace

bool IsStandardInput(const std::filesystem::path& file) {
  BY_HANDLE_FILE_INFORMATION input{};
  BY_HANDLE_FILE_INFORMATION other{};
  if (!IdentityOf(GetStdHandle(STD_INPUT_HANDLE), input)) return false;
  // No access at all is asked for, so that whoever has it open does not matter.
  const HANDLE handle = CreateFileW(file.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  const bool known = IdentityOf(handle, other);
  CloseHandle(handle);
  return known && input.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
         input.nFileIndexHigh == other.nFileIndexHigh && input.nFileIndexLow == other.nFileIndexLow;
}

}  // namespace zrkhost
