#include "support/TemporaryFolder.h"

#include <random>

#include "core/HostPath.h"
#include "support/Files.h"

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  const fs::path parent = fs::canonical(fs::temp_directory_path());
  do {
    path_ = parent / ("zt-" + std::to_string(random()) + std::to_string(random()));
  } while (!fs::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
  if (!ignored) return;
  // Windows does not remove read-only files, and the clients leave many.
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path_, ignored)) {
    if (entry.is_regular_file()) SetWritable(entry.path());
  }
  fs::remove_all(path_, ignored);
}

std::string TemporaryFolder::Host() const {
  return standin::HostPath(path_);
}

std::string TemporaryFolder::Host(const fs::path& name) const {
  return standin::HostPath(path_ / name);
}
