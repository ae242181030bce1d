#include "support/Platform.h"

const char kPathListSeparator = ':';

std::filesystem::path ExecutableFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}
