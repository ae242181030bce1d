#pragma once

#include <cstdint>
#include <functional>
#include <string>

// Control of the stand-in: what CreateProcessW was asked for.
namespace standin {

// The arguments as they were passed, character by character, and whether a process was created.
struct Launch {
  std::wstring Program;
  std::wstring CommandLine;
  std::wstring Folder;
  std::uint32_t CreationFlags = 0;
  bool Started = false;
};

// Hears of every call of CreateProcessW. An empty function: nobody listens.
using LaunchListener = std::function<void(const Launch&)>;
void SetLaunchListener(LaunchListener listener);

}  // namespace standin
