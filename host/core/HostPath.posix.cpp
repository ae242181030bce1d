#include "core/HostPath.h"

#include <algorithm>

#include "text/Characters.h"

namespace standin {

std::string HostPath(const std::filesystem::path& path) {
  std::string hostPath = path.string();
  std::replace(hostPath.begin(), hostPath.end(), '/', '\\');
  return hostPath;
}

std::filesystem::path FilePath(std::string_view hostPath) {
  std::string path(hostPath);
  ReplaceByCharacters(path, '\\', '/');
  return path;
}

}  // namespace standin
