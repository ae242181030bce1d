#include "core/RuntimeFiles.h"

namespace standin {

const char kFolderListSeparator = ';';

bool IsRunnableFile(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(path, ignored);
}

}  // namespace standin
