#include "core/RuntimeFiles.h"

#include <unistd.h>

namespace standin {

const char kFolderListSeparator = ':';

bool IsRunnableFile(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(path, ignored) && access(path.c_str(), X_OK) == 0;
}

}  // namespace standin
