#include "report/LaunchEvents.h"

namespace zrkhost {

bool LaunchesAreKnown() {
  return false;
}

void ListenToLaunches(std::function<void(const LaunchEvent&)>) {}

}  // namespace zrkhost
