#include "load/ProcessFigures.h"

#include <malloc.h>

#include <chrono>
#include <fstream>
#include <ostream>
#include <string>
#include <thread>

#include "framework/FrameworkControl.h"
#include "support/HandleCount.h"
#include "windows/WindowsControl.h"

// In a program that is built with the address sanitizer: memory that is freed is not kept back, which would
// look as if it piled up.
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options() {
  return "quarantine_size_mb=0:thread_local_quarantine_size_kb=0";
}

namespace {

long ResidentMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word != "VmRSS:") continue;
    long size = 0;
    status >> size;
    return size;
  }
  return 0;
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const ProcessFigures& figures) {
  return stream << figures.Memory << " KiB, " << figures.Handles << " handles, " << figures.Children
                << " clients, " << figures.Objects << " objects";
}

ProcessFigures TakeFigures() {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (standin::LiveChildCount() > 0 && std::chrono::steady_clock::now() < deadline)
    std::this_thread::yield();
  // What was freed but is kept for the next allocation is not in use.
  malloc_trim(0);
  return {ResidentMemory(), CountOpenHandles(), standin::LiveChildCount(), standin::LiveObjectCount()};
}
