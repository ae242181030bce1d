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

// Hears of every call of CreateProcessW where that function is the stand-in's own; on Windows, of none.
// An empty function: nobody listens.
void ListenToLaunches(std::function<void(const LaunchEvent&)> listener);

}  // namespace zrkhost
