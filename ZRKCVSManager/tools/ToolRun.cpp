#include "tools/ToolRun.h"

#include <cstdint>
#include <cstring>
#include <string>

#include "text/Text.h"
#include "tools/QuestionSearch.h"

namespace zrk::tools {
namespace {

constexpr DWORD kChunkSize = 4096;

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

// True when the output has ended; false when the client waits for an answer, or has written nothing.
bool ReadOutput(const ToolContext& context, CATUnicodeString& output) {
  QuestionSearch question;
  char buffer[kChunkSize + 1];
  for (;;) {
    DWORD count = 0;
    buffer[0] = '\0';
    if (!ReadFile(context.ChildOutput.Read.Get(), buffer, kChunkSize, &count, nullptr)) return true;
    if (count == 0) return false;
    buffer[count] = '\0';
    output += buffer;
    if (question.FindIn(text::View(output))) return false;
  }
}

}  // namespace

void RunTool(const ToolContext& context, const CATUnicodeString& arguments,
             const CATUnicodeString& workingFolder, CATUnicodeString& output) {
  if (!context.IsSVN && context.CVSExePath.GetLengthInChar() < 1) return;

  FinishRun(context);
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
    // It may still be open, and then the output has no end that could be read to.
    context.ChildOutput.Read.Close();
    return;
  }
  if (ReadOutput(context, output)) context.ChildOutput.Close();
}

void AnswerTool(const ToolContext& context, const char* answer) {
  if (answer) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::strlen(answer) + 1);
    WriteFile(context.ChildInput.Write.Get(), answer, size, &written, nullptr);
  }
  FinishRun(context);
}

void FinishRun(const ToolContext& context) {
  context.ChildInput.Close();
  // RunTool closes the write end once a client is started.
  const bool hasClient = !context.ChildOutput.Write.Get();
  if (hasClient && context.ChildOutput.Read.Get()) {
    char buffer[kChunkSize];
    DWORD count = 0;
    // An empty write of the client is not yet its end.
    while (ReadFile(context.ChildOutput.Read.Get(), buffer, sizeof(buffer), &count, nullptr)) {
    }
  }
  context.ChildOutput.Close();
}

}  // namespace zrk::tools
