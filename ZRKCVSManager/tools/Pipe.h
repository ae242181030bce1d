#pragma once

#include <windows.h>

#include <utility>

namespace zrk::tools {

// Owns a handle of the system and closes it, once.
class UniqueHandle {
public:
  UniqueHandle() = default;
  UniqueHandle(const UniqueHandle&) = delete;
  UniqueHandle& operator=(const UniqueHandle&) = delete;
  ~UniqueHandle() { Close(); }

  HANDLE Get() const { return handle_; }
  // Where a system call puts a new handle; what was held before is closed.
  HANDLE* Receive() {
    Close();
    return &handle_;
  }
  // False when the system could not close the handle, which may then still be open; true also when there
  // was none. It is given up in any case: its value may soon stand for another handle.
  bool Close() {
    const HANDLE handle = std::exchange(handle_, nullptr);
    return !handle || CloseHandle(handle);
  }

private:
  HANDLE handle_ = nullptr;
};

struct Pipe {
  UniqueHandle Read;
  UniqueHandle Write;

  void Close() {
    Read.Close();
    Write.Close();
  }
};

}  // namespace zrk::tools
