#include <fcntl.h>
#include <windows.h>

#include <cerrno>
#include <new>

#include "windows/HandleTable.h"
#include "windows/SignalMask.h"
#include "windows/WindowsFaults.h"

using standin::FileDescriptor;
using standin::HandleTable;
using standin::NewHandle;
using standin::TakesFault;
using standin::WindowsCall;

namespace {

// In a host without standard streams a pipe would get their numbers, and then the standard handles
// would reach into it.
FileDescriptor AboveStandard(FileDescriptor descriptor) {
  constexpr int kFirstFree = STDERR_FILENO + 1;
  if (descriptor.Get() >= kFirstFree) return descriptor;
  return FileDescriptor(fcntl(descriptor.Get(), F_DUPFD_CLOEXEC, kFirstFree));
}

bool CanBeRead(int descriptor) {
  const int flags = fcntl(descriptor, F_GETFL);
  return flags >= 0 && (flags & O_ACCMODE) != O_WRONLY;
}

void Store(LPDWORD target, std::size_t value) {
  if (target) *target = static_cast<DWORD>(value);
}

}  // namespace

BOOL CreatePipe(HANDLE* readEnd, HANDLE* writeEnd, LPSECURITY_ATTRIBUTES attributes, DWORD /*size*/) try {
  if (TakesFault(WindowsCall::CreatePipe)) return FALSE;
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return FALSE;
  FileDescriptor reading = AboveStandard(FileDescriptor(ends[0]));
  FileDescriptor writing = AboveStandard(FileDescriptor(ends[1]));
  if (!reading || !writing) return FALSE;

  const bool inheritable = attributes && attributes->bInheritHandle;
  NewHandle newReadEnd(std::move(reading), inheritable);
  NewHandle newWriteEnd(std::move(writing), inheritable);
  *readEnd = newReadEnd.Release();
  *writeEnd = newWriteEnd.Release();
  return TRUE;
} catch (const std::bad_alloc&) {
  return FALSE;
}

BOOL SetHandleInformation(HANDLE handle, DWORD mask, DWORD flags) {
  if (TakesFault(WindowsCall::SetHandleInformation)) return FALSE;
  const auto object = HandleTable::Instance().Find(handle);
  if (!object) return FALSE;
  if (mask & HANDLE_FLAG_INHERIT) object->Inheritable = (flags & HANDLE_FLAG_INHERIT) != 0;
  return TRUE;
}

BOOL ReadFile(HANDLE handle, LPVOID buffer, DWORD size, LPDWORD read, LPOVERLAPPED overlapped) {
  Store(read, 0);
  if (TakesFault(WindowsCall::ReadFile)) return FALSE;
  if (TakesFault(WindowsCall::ReadFileEmpty)) return TRUE;
  const auto object = HandleTable::Instance().Find(handle);
  if (!object || overlapped) return FALSE;
  if (size == 0) return CanBeRead(object->Descriptor.Get());

  ssize_t count = 0;
  do {
    count = ::read(object->Descriptor.Get(), buffer, size);
  } while (count < 0 && errno == EINTR);
  if (count <= 0) return FALSE;
  Store(read, static_cast<std::size_t>(count));
  return TRUE;
}

BOOL WriteFile(HANDLE handle, LPCVOID buffer, DWORD size, LPDWORD written, LPOVERLAPPED overlapped) {
  Store(written, 0);
  if (TakesFault(WindowsCall::WriteFile)) return FALSE;
  const auto object = HandleTable::Instance().Find(handle);
  if (!object || !object->Descriptor || overlapped) return FALSE;

  const standin::NoBrokenPipeSignal noSignal;
  const char* const bytes = static_cast<const char*>(buffer);
  std::size_t done = 0;
  do {  // once also for no bytes at all, which shows whether the handle can be written to
    const ssize_t count = ::write(object->Descriptor.Get(), bytes + done, size - done);
    if (count < 0 && errno != EINTR) return FALSE;
    if (count > 0) done += static_cast<std::size_t>(count);
    Store(written, done);
  } while (done < size);
  return TRUE;
}

BOOL CloseHandle(HANDLE handle) {
  if (TakesFault(WindowsCall::CloseHandleInVain)) return FALSE;
  const bool fails = TakesFault(WindowsCall::CloseHandle);
  return HandleTable::Instance().Remove(handle) && !fails;
}

HANDLE GetStdHandle(DWORD which) {
  switch (which) {
    case STD_INPUT_HANDLE:
      return HandleTable::StandardHandle(STDIN_FILENO);
    case STD_OUTPUT_HANDLE:
      return HandleTable::StandardHandle(STDOUT_FILENO);
    case STD_ERROR_HANDLE:
      return HandleTable::StandardHandle(STDERR_FILENO);
    default:
      return INVALID_HANDLE_VALUE;
  }
}
