#include "windows/WindowsControl.h"

#include <array>
#include <mutex>

#include "windows/ChildReaper.h"
#include "windows/HandleTable.h"
#include "windows/WindowsFaults.h"

namespace standin {
namespace {

constexpr int NoFault = -1;

std::mutex mutex;
std::array<int, 6> successesLeft = {NoFault, NoFault, NoFault, NoFault, NoFault, NoFault};
static_assert(static_cast<std::size_t>(WindowsCall::CloseHandle) + 1 == successesLeft.size());

}  // namespace

void FailWindowsCall(WindowsCall call, int successes) {
  const std::lock_guard lock(mutex);
  successesLeft[static_cast<std::size_t>(call)] = successes < 0 ? NoFault : successes;
}

bool TakesFault(WindowsCall call) {
  const std::lock_guard lock(mutex);
  int& left = successesLeft[static_cast<std::size_t>(call)];
  if (left == NoFault) return false;
  return left-- == 0;
}

int OpenHandleCount() {
  return HandleTable::Instance().Count();
}

int LiveChildCount() {
  return ChildReaper::Instance().LiveCount();
}

}  // namespace standin
