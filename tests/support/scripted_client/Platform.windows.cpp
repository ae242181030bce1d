#include "Platform.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <array>
#include <cstdlib>

// The C runtime would take "*" in an argument for a pattern of file names.
extern "C" {
extern int _CRT_glob;
int _CRT_glob = 0;
}

void SetBinaryStandardStreams() {
  for (int number = 0; number < 3; ++number) _setmode(number, _O_BINARY);
}

std::string CurrentFolder() {
  std::array<char, 4096> buffer{};
  const DWORD length = GetCurrentDirectoryA(static_cast<DWORD>(buffer.size()), buffer.data());
  return {buffer.data(), length < buffer.size() ? length : 0};
}

int ProcessId() {
  return static_cast<int>(GetCurrentProcessId());
}

void AppendToFile(const std::string& path, std::string_view bytes) {
  const HANDLE file = CreateFileA(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  DWORD written = 0;
  if (file == INVALID_HANDLE_VALUE ||
      !WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)) {
    std::abort();
  }
  CloseHandle(file);
}

bool CreateNewFile(const std::string& path) {
  const HANDLE file =
      CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  return true;
}

void CloseStandardStream(int number) {
  _close(number);
}

std::string ConsoleText() {
  const HANDLE console = CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  if (console == INVALID_HANDLE_VALUE) return "no console";
  CloseHandle(console);
  std::array<DWORD, 2> processes{};
  const bool isOwn = GetConsoleProcessList(processes.data(), static_cast<DWORD>(processes.size())) == 1;
  return std::string(isOwn ? "own" : "shared") + " console, " + (GetConsoleWindow() ? "window" : "no window");
}

void EndAbruptly() {
  TerminateProcess(GetCurrentProcess(), 3);
  std::abort();
}
