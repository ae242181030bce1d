#include "files/ClientFile.h"

#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>

namespace zrk::files {
namespace {

struct FileCloser {
  void operator()(std::FILE* file) const { fclose(file); }
};

std::unique_ptr<std::FILE, FileCloser> Open(const std::string& path, const char* mode) {
  return std::unique_ptr<std::FILE, FileCloser>(fopen(path.c_str(), mode));
}

}  // namespace

bool CanOpen(const std::string& path) {
  return Open(path, "rt") != nullptr;
}

bool HoldsSeveralLines(const std::string& path) {
  const auto file = Open(path, "rt");
  if (!file) return false;
  for (int character = fgetc(file.get()); character != EOF; character = fgetc(file.get())) {
    if (character == '\n') return fgetc(file.get()) != EOF;
  }
  return false;
}

std::optional<Text> ReadText(const std::string& path, const char* mode) {
  const auto file = Open(path, mode);
  if (!file) return std::nullopt;
  struct _stat64i32 status {};
  _stat64i32(path.c_str(), &status);
  // One more than the file has, so that its end is met without growing. It may have grown meanwhile.
  std::size_t room = static_cast<std::size_t>(std::max<long>(status.st_size, 0)) + 1;
  Text text{std::make_unique_for_overwrite<char[]>(room)};
  while (const std::size_t count =
             fread(text.Characters.get() + text.Size, 1, room - text.Size, file.get())) {
    text.Size += count;
    if (text.Size < room) continue;
    room *= 2;
    auto larger = std::make_unique_for_overwrite<char[]>(room);
    std::memcpy(larger.get(), text.Characters.get(), text.Size);
    text.Characters = std::move(larger);
  }
  return text;
}

}  // namespace zrk::files
