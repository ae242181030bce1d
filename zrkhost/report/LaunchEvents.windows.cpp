#include "report/LaunchEvents.h"

namespace zrkhost {

void ListenToLaunches(std::function<void(const LaunchEvent&)>) {}

}  // namespace zrkhost
