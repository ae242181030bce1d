#include "files/FileMode.h"

#include <sys/stat.h>
#include <windows.h>

namespace zrk::files {
namespace {

constexpr int kOwnerWrite = 0x80;

}  // namespace

bool IsFolder(const std::string& path) {
  struct _stat64i32 status {};
  return _stat64i32(path.c_str(), &status) == 0 && (status.st_mode & _S_IFMT) == _S_IFDIR;
}

bool IsWritable(const char* path) {
  struct _stat64i32 status {};
  // A failed call leaves the mode 0: a document that is not on disk is not writable.
  _stat64i32(path, &status);
  return (status.st_mode & kOwnerWrite) != 0;
}

}  // namespace zrk::files
