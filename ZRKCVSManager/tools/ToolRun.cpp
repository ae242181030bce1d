#include "tools/ToolRun.h"

#include <cstring>
#include <string>
#include <string_view>

namespace zrk::tools {
namespace {

constexpr DWORD kChunkSize = 4096;
constexpr std::string_view kQuestion = "revert changes";

// 0 when the process was not created.
std::int32_t LaunchTool(const ToolContext& context, const CATUnicodeString& commandLine,
                        const CATUnicodeString& workingFolder) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = context.ChildInput.Read.Get();
  startup.hStdOutput = context.ChildOutput.Write.Get();
  startup.hStdError = context.ChildOutput.Write.Get();
  PROCESS_INFORMATION process{};

  const std::wstring program = (context.IsSVN ? context.SVNExePath : context.CVSExePath).ConvertToWideChar();
  std::wstring command = commandLine.ConvertToWideChar();
  const std::wstring folder = workingFolder.ConvertToWideChar();
  const BOOL created = CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, TRUE,
                                      CREATE_NO_WINDOW, nullptr, folder.c_str(), &startup, &process);
  if (!created) {
    OutputDebugStringW(L"CreateProcess failed\n");
    return 0;
  }
  CloseHandle(process.hProcess);
  CloseHandle(process.hThread);
  return created;
}

// Whether `output`, searched before up to `searched` bytes, holds the question. Only what is new, and
// before it as much as an occurrence can reach back, is looked at.
bool HoldsQuestion(const CATUnicodeString& output, std::size_t& searched) {
  const std::string_view text(output.ConvertToChar(), static_cast<std::size_t>(output.GetLengthInByte()));
  const std::size_t overlap = kQuestion.size() - 1;
  const std::size_t from = searched > overlap ? searched - overlap : 0;
  searched = text.size();
  return text.find(kQuestion, from) != std::string_view::npos;
}

void ReadOutput(const ToolContext& context, CATUnicodeString& output) {
  char buffer[kChunkSize + 1];
  std::size_t searched = 0;
  do {
    DWORD count = 0;
    buffer[0] = '\0';
    if (!ReadFile(context.ChildOutput.Read.Get(), buffer, kChunkSize, &count, nullptr)) return;
    if (count == 0) return;
    buffer[count] = '\0';
    output += buffer;
  } while (!HoldsQuestion(output, searched));
}

}  // namespace

void RunTool(const ToolContext& context, const CATUnicodeString& arguments,
             const CATUnicodeString& workingFolder, CATUnicodeString& output) {
  if (!context.IsSVN && context.CVSExePath.GetLengthInChar() < 1) return;

  SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  if (!CreatePipe(context.ChildOutput.Read.Receive(), context.ChildOutput.Write.Receive(), &attributes, 0)) {
    OutputDebugStringW(L"Stdout pipe creation failed\n");
    return;
  }
  if (!CreatePipe(context.ChildInput.Read.Receive(), context.ChildInput.Write.Receive(), &attributes, 0)) {
    OutputDebugStringW(L"Stdin pipe creation failed\n");
    return;
  }
  SetHandleInformation(context.ChildInput.Write.Get(), HANDLE_FLAG_INHERIT, 0);
  SetHandleInformation(context.ChildOutput.Read.Get(), HANDLE_FLAG_INHERIT, 0);

  const CATUnicodeString commandLine =
      context.IsSVN ? arguments : CATUnicodeString(" -d ") + context.CVSRoot + " " + arguments;
  if (!LaunchTool(context, commandLine, workingFolder)) {
    OutputDebugStringW(L"Create process failed with");
    return;
  }
  // The client has its own copies. While ours of the write end is open its output has no end, and while
  // ours of the read end is, writing an answer to a client that has gone would not fail.
  context.ChildInput.Read.Close();
  if (!context.ChildOutput.Write.Close()) {
    OutputDebugStringW(L"Closing handle failed\n");
    return;
  }
  ReadOutput(context, output);
}

void AnswerTool(const ToolContext& context, const char* answer, DWORD patience) {
  if (answer) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::strlen(answer) + 1);
    WriteFile(context.ChildInput.Write.Get(), answer, size, &written, nullptr);
  }
  context.ChildInput.Write.Close();

  char buffer[kChunkSize];
  DWORD available = 0;
  DWORD silence = 0;
  while (silence < patience &&
         PeekNamedPipe(context.ChildOutput.Read.Get(), nullptr, 0, nullptr, &available, nullptr)) {
    DWORD count = 0;
    if (available == 0) {
      Sleep(1);
      ++silence;
    } else {
      if (!ReadFile(context.ChildOutput.Read.Get(), buffer, sizeof(buffer), &count, nullptr)) break;
      silence = 0;
    }
  }
  context.ChildOutput.Read.Close();
}

}  // namespace zrk::tools
