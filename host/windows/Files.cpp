#include <fcntl.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <limits>
#include <string>
#include <string_view>

#include "core/HostPath.h"
#include "windows/FileDescriptor.h"
#include "windows/TextModeFile.h"
#include "windows/WindowsControl.h"

using standin::FileDescriptor;

namespace {

std::atomic<bool> binaryByDefault = false;

bool IsBinary(std::string_view mode) {
  if (mode.find('b') != std::string_view::npos) return true;
  return binaryByDefault && mode.find('t') == std::string_view::npos;
}

// A folder can be opened here, but there it cannot.
FileDescriptor OpenForReading(const std::string& path) {
  FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (!file || fstat(file.Get(), &status) != 0) return {};
  if (S_ISDIR(status.st_mode)) {
    errno = EACCES;
    return {};
  }
  return file;
}

std::FILE* OpenBinaryStream(FileDescriptor file) {
  std::FILE* const stream = fdopen(file.Get(), "rb");
  if (stream) file.Release();  // the stream closes it
  return stream;
}

}  // namespace

void standin::OpenFilesInBinary(bool binary) {
  binaryByDefault = binary;
}

// Stands in the place of fopen in everything that is linked with this library. Modes that write reach
// the C library's own function; line ends are written as they are.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the linker gives the name
extern "C" std::FILE* __wrap_fopen(const char* hostPath, const char* mode) try {
  const std::string path = standin::FilePath(hostPath).string();
  const std::string_view how = mode;
  const bool onlyReads = how.starts_with('r') && how.find('+') == std::string_view::npos;
  if (!onlyReads) {
    std::string notInherited(how);
    if (!how.empty()) notInherited.insert(1, 1, 'e');
    return std::fopen(path.c_str(), notInherited.c_str());
  }

  FileDescriptor file = OpenForReading(path);
  if (!file) return nullptr;
  return IsBinary(how) ? OpenBinaryStream(std::move(file)) : standin::OpenTextStream(std::move(file));
} catch (const std::exception&) {
  return nullptr;
}

int _stat64i32(const char* path, struct _stat64i32* result) {
  struct stat status {};
  if (stat(standin::FilePath(path).c_str(), &status) != 0) return -1;
  // The owner's bits are those of Windows. They are given as they are set, also to a user who may do
  // everything.
  static_assert(S_IRUSR == _S_IREAD && S_IWUSR == _S_IWRITE);
  result->st_mode = static_cast<std::uint16_t>(status.st_mode & (S_IFMT | S_IRWXU));
  constexpr off_t kLargest = std::numeric_limits<std::int32_t>::max();
  result->st_size = static_cast<std::int32_t>(std::min(status.st_size, kLargest));
  return 0;
}
