#include "console/ProgramRun.h"

#include <windows.h>

#include <system_error>

#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

// A file that a child process inherits; closed at the end.
class InheritedFile {
public:
  InheritedFile(const std::filesystem::path& path, DWORD access, DWORD disposition) {
    SECURITY_ATTRIBUTES inherit{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    handle_ = CreateFileW(path.c_str(), access, FILE_SHARE_READ, &inherit, disposition, FILE_ATTRIBUTE_NORMAL,
                          nullptr);
  }
  ~InheritedFile() { CloseHandle(handle_); }
  InheritedFile(const InheritedFile&) = delete;
  InheritedFile& operator=(const InheritedFile&) = delete;

  HANDLE Get() const { return handle_; }

private:
  HANDLE handle_;
};

// As the Microsoft C runtime takes it apart again.
std::wstring Quoted(const std::wstring& argument) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t character : argument) {
    if (character == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = character == L'\\' ? backslashes + 1 : 0;
    quoted += character;
  }
  quoted.append(backslashes, L'\\');
  return quoted + L"\"";
}

std::string WithLineFeeds(std::string text) {
  std::size_t at = 0;
  while ((at = text.find("\r\n", at)) != std::string::npos) text.erase(at++, 1);
  return text;
}

}  // namespace

ProgramResult RunProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const std::string& input) {
  const TemporaryFolder folder;
  WriteFile(folder / "in", input);
  ProgramResult result;
  {
    const InheritedFile in(folder / "in", GENERIC_READ, OPEN_EXISTING);
    const InheritedFile out(folder / "out", GENERIC_WRITE, CREATE_ALWAYS);
    const InheritedFile err(folder / "err", GENERIC_WRITE, CREATE_ALWAYS);
    std::wstring commandLine = Quoted(program.wstring());
    for (const auto& argument : arguments) {
      commandLine += L" " + Quoted(std::filesystem::path(argument).wstring());
    }
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = in.Get();
    startup.hStdOutput = out.Get();
    startup.hStdError = err.Get();
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                        &startup, &process)) {
      throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), program.string());
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    result.Status = static_cast<int>(status);
  }
  result.Output = WithLineFeeds(ReadFile(folder / "out"));
  result.Error = WithLineFeeds(ReadFile(folder / "err"));
  return result;
}
