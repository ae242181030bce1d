#pragma once

#include <fcntl.h>

#include <filesystem>
#include <set>
#include <string>

// The descriptors that are open in this process.
inline std::set<int> OpenDescriptors() {
  std::set<int> open;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    open.insert(std::stoi(entry.path().filename().string()));
  }
  // The one through which the folder itself was read is closed by now.
  std::erase_if(open, [](int descriptor) { return fcntl(descriptor, F_GETFD) < 0; });
  return open;
}
