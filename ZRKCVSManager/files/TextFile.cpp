#include "files/TextFile.h"

#include <sys/stat.h>
#include <windows.h>

#include <cstdio>
#include <memory>

namespace zrk::files {
namespace {

constexpr int kOwnerWrite = 0x80;

struct FileCloser {
  void operator()(std::FILE* file) const { fclose(file); }
};

std::unique_ptr<std::FILE, FileCloser> OpenText(const std::string& path) {
  return std::unique_ptr<std::FILE, FileCloser>(fopen(path.c_str(), "rt"));
}

}  // namespace

bool CanOpen(const std::string& path) {
  return OpenText(path) != nullptr;
}

std::optional<std::string> ReadText(const std::string& path) {
  const auto file = OpenText(path);
  if (!file) return std::nullopt;
  std::string text;
  std::size_t used = 0;
  for (;;) {
    if (used == text.size()) text.resize(used == 0 ? 64 * 1024 : used * 2);
    const std::size_t count = fread(text.data() + used, 1, text.size() - used, file.get());
    if (count == 0) break;
    used += count;
  }
  text.resize(used);
  return text;
}

bool IsWritable(const char* path) {
  struct _stat64i32 status {};
  // A failed call leaves the mode 0: a document that is not on disk is not writable.
  _stat64i32(path, &status);
  return (status.st_mode & kOwnerWrite) != 0;
}

}  // namespace zrk::files
