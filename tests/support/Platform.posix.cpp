#include "support/Platform.h"

const char pathListSeparator = ':';

std::filesystem::path ExecutableFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}
