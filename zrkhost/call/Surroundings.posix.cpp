#include <cstdlib>
#include <string>

#include "call/Surroundings.h"

namespace zrkhost {

std::filesystem::path ProgramFile() {
  return std::filesystem::read_symlink("/proc/self/exe");
}

std::string LibraryFileName(const std::string& name) {
  return "lib" + name + ".so";
}

bool AppendToPath(const std::filesystem::path& folder) {
  if (folder.native().find(':') != std::string::npos) return false;
  const char* path = std::getenv("PATH");
  const std::string before = path && *path ? path + std::string(":") : std::string();
  setenv("PATH", (before + folder.string()).c_str(), 1);
  return true;
}

}  // namespace zrkhost
