#include "support/HandleCount.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "windows/WindowsControl.h"

namespace fs = std::filesystem;

namespace {

// The stand-in watches its children by descriptors of its own: one for all, made with the first child, and
// one for each until it is reaped, which is some time after its output has ended. One that is gone by now
// was such a one.
bool WatchesChildren(const fs::directory_entry& descriptor) {
  std::error_code gone;
  const fs::path target = fs::read_symlink(descriptor.path(), gone);
  const std::string name = target.string();
  return gone || name.find("pidfd") != std::string::npos || name.find("eventfd") != std::string::npos;
}

}  // namespace

int CountOpenHandles() {
  const fs::directory_iterator descriptors("/proc/self/fd");
  return standin::OpenHandleCount() +
         static_cast<int>(std::count_if(begin(descriptors), end(descriptors),
                                        [](const auto& descriptor) { return !WatchesChildren(descriptor); }));
}

int CountInheritableHandles() {
  return standin::InheritableHandleCount();
}
