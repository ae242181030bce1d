#pragma once

#include <functional>
#include <string>

namespace zrkhost {

struct LaunchEvent {
  std::wstring Program;
  std::wstring CommandLine;
  std::wstring Folder;
  bool Started = false;
};

// Whether launches can be heard of: on Linux, where CreateProcessW is the stand-in's own. Windows has no
// means to hear of them.
bool LaunchesAreKnown();

// Hears of every call of CreateProcessW where they are known; else of none.
// An empty function: nobody listens.
void ListenToLaunches(std::function<void(const LaunchEvent&)> listener);

}  // namespace zrkhost
