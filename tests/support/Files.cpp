#include "support/Files.h"

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

void WriteFile(const fs::path& path, std::string_view bytes) {
  if (path.has_parent_path()) fs::create_directories(path.parent_path());
  std::ofstream file;
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.open(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
}

std::string ReadFile(const fs::path& path) {
  std::ifstream file;
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.open(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void SetReadOnly(const fs::path& path) {
  fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                  fs::perm_options::remove);
}

void SetWritable(const fs::path& path) {
  fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
}

bool IsWritable(const fs::path& path) {
  return (fs::status(path).permissions() & fs::perms::owner_write) != fs::perms::none;
}
