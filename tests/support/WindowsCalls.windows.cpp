// Control of the calls to Windows that this program makes itself, as the stand-in has it for its own
// functions: hearing of launches, and letting a call fail. The linker takes the pointers to the functions
// from here instead of from the import library; other modules of the process keep theirs.

#include <windows.h>

#include <array>
#include <cstddef>
#include <utility>

#include "windows/LaunchLog.h"
#include "windows/WindowsControl.h"

namespace {

using standin::WindowsCall;

standin::LaunchListener listener;
// By function: calls that still succeed before the one that fails; negative: none fails.
std::array<int, 8> successesLeft = {-1, -1, -1, -1, -1, -1, -1, -1};

bool MustFail(WindowsCall call) {
  int& successes = successesLeft[static_cast<std::size_t>(call)];
  return successes >= 0 && successes-- == 0;
}

template <class Function>
Function* Real(const char* name) {
  void* const address = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), name));
  return reinterpret_cast<Function*>(address);
}

std::wstring Text(const wchar_t* text) {
  return text ? text : L"";
}

BOOL WINAPI CreateProcessHere(const wchar_t* program, wchar_t* commandLine, SECURITY_ATTRIBUTES* process,
                              SECURITY_ATTRIBUTES* thread, BOOL inherit, DWORD flags, void* environment,
                              const wchar_t* folder, STARTUPINFOW* startup, PROCESS_INFORMATION* created) {
  static const auto real = Real<decltype(CreateProcessW)>("CreateProcessW");
  // The system may write into the command line.
  standin::Launch launch{Text(program), Text(commandLine), Text(folder), flags};
  launch.Started =
      !MustFail(WindowsCall::CreateProcess) &&
      real(program, commandLine, process, thread, inherit, flags, environment, folder, startup, created) != 0;
  if (listener) listener(launch);
  return launch.Started;
}

BOOL WINAPI CreatePipeHere(HANDLE* read, HANDLE* write, SECURITY_ATTRIBUTES* attributes, DWORD size) {
  static const auto real = Real<decltype(CreatePipe)>("CreatePipe");
  return !MustFail(WindowsCall::CreatePipe) && real(read, write, attributes, size);
}

BOOL WINAPI SetHandleInformationHere(HANDLE handle, DWORD mask, DWORD flags) {
  static const auto real = Real<decltype(SetHandleInformation)>("SetHandleInformation");
  return !MustFail(WindowsCall::SetHandleInformation) && real(handle, mask, flags);
}

BOOL WINAPI ReadFileHere(HANDLE file, void* buffer, DWORD size, DWORD* count, OVERLAPPED* overlapped) {
  static const auto real = Real<decltype(ReadFile)>("ReadFile");
  if (MustFail(WindowsCall::ReadFileEmpty)) {
    *count = 0;
    return TRUE;
  }
  return !MustFail(WindowsCall::ReadFile) && real(file, buffer, size, count, overlapped);
}

BOOL WINAPI WriteFileHere(HANDLE file, const void* bytes, DWORD size, DWORD* count, OVERLAPPED* overlapped) {
  static const auto real = Real<decltype(WriteFile)>("WriteFile");
  return !MustFail(WindowsCall::WriteFile) && real(file, bytes, size, count, overlapped);
}

BOOL WINAPI CloseHandleHere(HANDLE handle) {
  static const auto real = Real<decltype(CloseHandle)>("CloseHandle");
  if (MustFail(WindowsCall::CloseHandleInVain)) return FALSE;
  const bool fails = MustFail(WindowsCall::CloseHandle);
  return real(handle) && !fails;
}

}  // namespace

extern "C" {
extern decltype(&CreateProcessW) __imp_CreateProcessW;
extern decltype(&CreatePipe) __imp_CreatePipe;
extern decltype(&SetHandleInformation) __imp_SetHandleInformation;
extern decltype(&ReadFile) __imp_ReadFile;
extern decltype(&WriteFile) __imp_WriteFile;
extern decltype(&CloseHandle) __imp_CloseHandle;

constinit decltype(&CreateProcessW) __imp_CreateProcessW = CreateProcessHere;
constinit decltype(&CreatePipe) __imp_CreatePipe = CreatePipeHere;
constinit decltype(&SetHandleInformation) __imp_SetHandleInformation = SetHandleInformationHere;
constinit decltype(&ReadFile) __imp_ReadFile = ReadFileHere;
constinit decltype(&WriteFile) __imp_WriteFile = WriteFileHere;
constinit decltype(&CloseHandle) __imp_CloseHandle = CloseHandleHere;
}

namespace standin {

void SetLaunchListener(LaunchListener newListener) {
  listener = std::move(newListener);
}

void FailWindowsCall(WindowsCall call, int successes) {
  successesLeft[static_cast<std::size_t>(call)] = successes;
}

}  // namespace standin
