#include "terminal/StandardStreams.h"

#include <windows.h>

namespace zrkhost {

namespace {

// False for what is no file on a disk.
bool IdentityOf(HANDLE file, BY_HANDLE_FILE_INFORMATION& identity) {
  return GetFileType(file) == FILE_TYPE_DISK && GetFileInformationByHandle(file, &identity);
}

bool LeadsTo(DWORD stream, const std::filesystem::path& file) {
  BY_HANDLE_FILE_INFORMATION led{};
  BY_HANDLE_FILE_INFORMATION other{};
  if (!IdentityOf(GetStdHandle(stream), led)) return false;
  // No access at all is asked for, so that whoever has it open does not matter.
  const HANDLE handle = CreateFileW(file.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  const bool known = IdentityOf(handle, other);
  CloseHandle(handle);
  return known && led.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
         led.nFileIndexHigh == other.nFileIndexHigh && led.nFileIndexLow == other.nFileIndexLow;
}

}  // namespace

bool IsStandardInput(const std::filesystem::path& file) {
  return LeadsTo(STD_INPUT_HANDLE, file);
}

bool IsStandardOutput(const std::filesystem::path& file) {
  return LeadsTo(STD_OUTPUT_HANDLE, file);
}

}  // namespace zrkhost
