#include "support/HandleCount.h"

#include <windows.h>

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace {

// What the system says of every handle of every process. GetProcessHandleCount would be simpler, but
// Wine answers it with 0.
struct SystemHandle {
  void* Object;
  ULONG_PTR Process;
  ULONG_PTR Value;
  ULONG Access;
  USHORT CreatorTrace;
  USHORT Type;
  ULONG Attributes;
  ULONG Reserved;
};

struct SystemHandles {
  ULONG_PTR Count;
  ULONG_PTR Reserved;
  SystemHandle Handles[1];
};

constexpr int kExtendedHandleInformation = 64;
constexpr LONG kTooSmall = static_cast<LONG>(0xC0000004);

using QuerySystem = LONG(WINAPI*)(int, void*, ULONG, ULONG*);

QuerySystem FindQuerySystem() {
  void* const address =
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation"));
  return reinterpret_cast<QuerySystem>(address);
}

// Those of this process.
std::vector<HANDLE> OpenHandles() {
  const QuerySystem query = FindQuerySystem();
  std::vector<std::byte> buffer(std::size_t{1} << 16);
  LONG result = kTooSmall;
  while ((result = query(kExtendedHandleInformation, buffer.data(), static_cast<ULONG>(buffer.size()),
                         nullptr)) == kTooSmall) {
    buffer.resize(buffer.size() * 2);
  }
  if (result != 0) throw std::runtime_error("the system does not give its handles");
  const auto& all = *reinterpret_cast<const SystemHandles*>(buffer.data());
  std::vector<HANDLE> handles;
  for (ULONG_PTR i = 0; i < all.Count; ++i) {
    if (all.Handles[i].Process != GetCurrentProcessId()) continue;
    handles.push_back(reinterpret_cast<HANDLE>(all.Handles[i].Value));
  }
  return handles;
}

}  // namespace

int CountOpenHandles() {
  return static_cast<int>(OpenHandles().size());
}

int CountInheritableHandles() {
  int count = 0;
  for (const HANDLE handle : OpenHandles()) {
    DWORD flags = 0;
    if (GetHandleInformation(handle, &flags) && (flags & HANDLE_FLAG_INHERIT)) ++count;
  }
  return count;
}
