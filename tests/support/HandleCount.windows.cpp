#include "support/HandleCount.h"

#include <windows.h>

int CountOpenHandles() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return static_cast<int>(count);
}
