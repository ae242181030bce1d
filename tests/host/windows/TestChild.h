#pragma once

#include <windows.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <thread>

// A pipe whose ends close with it.
class TestPipe {
public:
  explicit TestPipe(bool inheritable = false) {
    SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), nullptr, inheritable};
    valid_ = CreatePipe(&Reading, &Writing, &attributes, 0);
  }
  TestPipe(const TestPipe&) = delete;
  TestPipe& operator=(const TestPipe&) = delete;
  ~TestPipe() {
    CloseReading();
    CloseWriting();
  }

  bool IsValid() const { return valid_; }
  void CloseReading() { Close(Reading); }
  void CloseWriting() { Close(Writing); }

  bool Write(std::string_view text) {
    DWORD written = 0;
    return WriteFile(Writing, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
           written == text.size();
  }
  // What comes until the other end is closed.
  std::string ReadAll() {
    std::string text;
    char buffer[4096];
    DWORD count = 0;
    while (ReadFile(Reading, buffer, sizeof buffer, &count, nullptr)) text.append(buffer, count);
    return text;
  }

  HANDLE Reading = nullptr;
  HANDLE Writing = nullptr;

private:
  static void Close(HANDLE& handle) {
    if (handle) CloseHandle(handle);
    handle = nullptr;
  }

  bool valid_ = false;
};

inline STARTUPINFOW StandardHandles(HANDLE input, HANDLE output, HANDLE error) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = input;
  startup.hStdOutput = output;
  startup.hStdError = error;
  return startup;
}

// Starts a program, closes the handles of its process and thread, and gives its number, or 0.
inline DWORD Launch(const wchar_t* program, std::wstring commandLine, STARTUPINFOW startup = {},
                    const wchar_t* folder = nullptr, bool inherit = true) {
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(program, commandLine.data(), nullptr, nullptr, inherit, CREATE_NO_WINDOW, nullptr,
                      folder, &startup, &process)) {
    return 0;
  }
  if (!CloseHandle(process.hProcess) || !CloseHandle(process.hThread)) return 0;
  return process.dwProcessId;
}

// A child whose standard streams are pipes; its standard error goes where its output does.
class TestChild {
public:
  explicit TestChild(const wchar_t* program, const std::wstring& commandLine,
                     const wchar_t* folder = nullptr) {
    SetHandleInformation(Input.Writing, HANDLE_FLAG_INHERIT, 0);
    SetHandleInformation(Output.Reading, HANDLE_FLAG_INHERIT, 0);
    Id = Launch(program, commandLine, StandardHandles(Input.Reading, Output.Writing, Output.Writing), folder);
    Input.CloseReading();
    Output.CloseWriting();
  }

  // All that it writes, with no more input for it.
  std::string Finish() {
    Input.CloseWriting();
    return Output.ReadAll();
  }

  TestPipe Input{true};
  TestPipe Output{true};
  DWORD Id = 0;  // 0 when it was not started
};

// A script for the shell as a command line.
inline std::wstring Script(const std::wstring& text) {
  return L"sh -c \"" + text + L"\"";
}

// Looks again and again until it holds; false when it never does.
inline bool Eventually(const std::function<bool()>& condition) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::yield();
  }
  return true;
}

// Whether there is such a process, be it a zombie.
inline bool ProcessExists(DWORD id) {
  return std::filesystem::exists(std::filesystem::path("/proc") / std::to_string(id));
}
