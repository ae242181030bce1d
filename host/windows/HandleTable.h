#pragma once

#include <windows.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "windows/FileDescriptor.h"

namespace standin {

// What a handle stands for. The handles of processes and threads have no descriptor: all that can be
// done with them is closing them.
struct KernelObject {
  FileDescriptor Descriptor;
  std::atomic<bool> Inheritable = false;
};

// The handles of this process. A value is never given out twice, so that whatever is done with a closed
// handle fails instead of reaching the next one opened. An object is let go when its handle is removed
// and no call that found it before is still at work.
class HandleTable {
public:
  // Lives to the very end of the process: static objects may close handles in their destructors.
  static HandleTable& Instance();

  HANDLE Add(FileDescriptor descriptor, bool inheritable);
  // Null when no such handle is open.
  std::shared_ptr<KernelObject> Find(HANDLE handle) const;
  // False when no such handle is open. The standard handles belong to the process and stay.
  bool Remove(HANDLE handle);
  // Both without the standard handles.
  int Count() const;
  int InheritableCount() const;

  // The handle of descriptor 0, 1 or 2.
  static HANDLE StandardHandle(std::uintptr_t descriptor);

private:
  HandleTable();

  mutable std::mutex mutex_;
  std::array<std::shared_ptr<KernelObject>, 3> standard_;
  std::map<std::uintptr_t, std::shared_ptr<KernelObject>> objects_;
  std::uintptr_t next_;
};

// A handle that nobody has yet: it is removed again unless it is released to its owner.
class NewHandle {
public:
  NewHandle(FileDescriptor descriptor, bool inheritable)
      : handle_(HandleTable::Instance().Add(std::move(descriptor), inheritable)) {}
  NewHandle(const NewHandle&) = delete;
  NewHandle& operator=(const NewHandle&) = delete;
  ~NewHandle() {
    if (handle_) HandleTable::Instance().Remove(handle_);
  }

  HANDLE Release() { return std::exchange(handle_, nullptr); }

private:
  HANDLE handle_;
};

}  // namespace standin
