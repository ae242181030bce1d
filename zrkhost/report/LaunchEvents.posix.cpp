#include "report/LaunchEvents.h"
#include "windows/LaunchLog.h"

namespace zrkhost {

bool LaunchesAreKnown() {
  return true;
}

void ListenToLaunches(std::function<void(const LaunchEvent&)> listener) {
  if (!listener) {
    standin::SetLaunchListener(nullptr);
    return;
  }
  standin::SetLaunchListener([listener = std::move(listener)](const standin::Launch& launch) {
    listener({launch.Program, launch.CommandLine, launch.Folder, launch.Started});
  });
}

}  // namespace zrkhost
