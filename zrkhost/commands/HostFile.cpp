#include "commands/HostFile.h"

#include <algorithm>

#include "core/HostPath.h"

namespace zrkhost {

std::string HostFile(const std::string& file) {
  std::string hostFile = file;
  std::replace(hostFile.begin(), hostFile.end(), '/', '\\');
  const auto path = standin::FilePath(hostFile);
  const bool isShare = hostFile.starts_with("\\\\");
  if (hostFile.empty() || isShare || path.is_absolute()) return hostFile;
  return standin::HostPath(std::filesystem::absolute(path).lexically_normal());
}

}  // namespace zrkhost
