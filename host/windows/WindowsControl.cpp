#include "windows/WindowsControl.h"

#include <array>
#include <mutex>

#include "windows/ChildReaper.h"
#include "windows/HandleTable.h"
#include "windows/WindowsFaults.h"

namespace standin {
namespace {

constexpr int kNoFault = -1;

std::mutex mutex;
std::array<int, 8> successesLeft = {kNoFault, kNoFault, kNoFault, kNoFault,
                                    kNoFault, kNoFault, kNoFault, kNoFault};
static_assert(static_cast<std::size_t>(WindowsCall::CloseHandleInVain) + 1 == successesLeft.size());

}  // namespace

void FailWindowsCall(WindowsCall call, int successes) {
  const std::lock_guard lock(mutex);
  successesLeft[static_cast<std::size_t>(call)] = successes < 0 ? kNoFault : successes;
}

bool TakesFault(WindowsCall call) {
  const std::lock_guard lock(mutex);
  int& left = successesLeft[static_cast<std::size_t>(call)];
  if (left == kNoFault) return false;
  return left-- == 0;
}

int OpenHandleCount() {
  return HandleTable::Instance().Count();
}

int InheritableHandleCount() {
  return HandleTable::Instance().InheritableCount();
}

int LiveChildCount() {
  return ChildReaper::Instance().LiveCount();
}

}  // namespace standin
