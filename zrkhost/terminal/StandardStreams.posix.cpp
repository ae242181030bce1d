#include "terminal/StandardStreams.h"

#include <sys/stat.h>
#include <unistd.h>

namespace zrkhost {

namespace {

bool LeadsTo(int descriptor, const std::filesystem::path& file) {
  struct stat stream {};
  struct stat other {};
  return fstat(descriptor, &stream) == 0 && S_ISREG(stream.st_mode) && stat(file.c_str(), &other) == 0 &&
         stream.st_dev == other.st_dev && stream.st_ino == other.st_ino;
}

}  // namespace

bool IsStandardInput(const std::filesystem::path& file) {
  return LeadsTo(STDIN_FILENO, file);
}

bool IsStandardOutput(const std::filesystem::path& file) {
  return LeadsTo(STDOUT_FILENO, file);
}

}  // namespace zrkhost
