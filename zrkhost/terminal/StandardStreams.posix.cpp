#include <sys/stat.h>
#include <unistd.h>

#include "terminal/StandardInput.h"

namespace zrkhost {

bool IsStandardInput(const std::filesystem::path& file) {
  struct stat input {};
  struct stat other {};
  return fstat(STDIN_FILENO, &input) == 0 && S_ISREG(input.st_mode) && stat(file.c_str(), &other) == 0 &&
         input.st_dev == other.st_dev && input.st_ino == other.st_ino;
}

}  // namespace zrkhost
