// What a client writes, captured by RunTool and by a bare loop over the same calls of the system.

#include <windows.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "Measurement.h"
#include "support/ScriptedClient.h"
#include "support/TemporaryFolder.h"
#include "text/NativeText.h"
#include "tools/ToolRun.h"

namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20;
constexpr std::string_view kLine = "   Repository revision:\t1.5\t/cvs/root/car/wheel left.CATPart,v";

// Lines of 64 bytes; the argument is the number of megabytes to write.
void Teach(ScriptedClient& client, std::size_t megabytes) {
  client.When("write " + std::to_string(megabytes))
      .Repeat(megabytes * kMegabyte / (kLine.size() + 2), std::string(kLine) + "\r\n");
}

void RequireAll(std::size_t captured, std::size_t megabytes) {
  if (captured < megabytes * kMegabyte - 100)
    throw std::runtime_error("the client's output was not captured whole");
}

struct Place {
  const ScriptedClient& Client;
  const TemporaryFolder& Folder;
};

void CaptureWithRunTool(const Place& place, std::size_t megabytes) {
  const CATUnicodeString none;
  const CATUnicodeString program = place.Client.HostPath("svn.exe").c_str();
  zrk::tools::Pipe output;
  zrk::tools::Pipe input;
  const zrk::tools::ToolContext context{true, none, none, program, output, input};
  const zrk::tools::RunScope run(context);
  CATUnicodeString captured;
  zrk::tools::RunTool(context, (" write " + std::to_string(megabytes)).c_str(), place.Folder.Host().c_str(),
                      captured);
  RequireAll(static_cast<std::size_t>(captured.GetLengthInByte()), megabytes);
}

// The same pieces of the same pipe into one growing buffer, and nothing else.
void CaptureWithBareLoop(const Place& place, std::size_t megabytes) {
  SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  zrk::tools::Pipe pipe;
  if (!CreatePipe(pipe.Read.Receive(), pipe.Write.Receive(), &inherited, 0))
    throw std::runtime_error("no pipe");
  SetHandleInformation(pipe.Read.Get(), HANDLE_FLAG_INHERIT, 0);

  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = pipe.Write.Get();
  startup.hStdError = pipe.Write.Get();
  PROCESS_INFORMATION process{};
  const std::wstring program = standin::WideFromNative(place.Client.HostPath("svn.exe"));
  const std::wstring folder = standin::WideFromNative(place.Folder.Host());
  std::wstring command = L" write " + std::to_wstring(megabytes);
  if (!CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                      folder.c_str(), &startup, &process))
    throw std::runtime_error("the client does not start");
  CloseHandle(process.hProcess);
  CloseHandle(process.hThread);
  pipe.Write.Close();

  std::string captured;
  char buffer[4096];
  DWORD count = 0;
  while (ReadFile(pipe.Read.Get(), buffer, sizeof(buffer), &count, nullptr)) captured.append(buffer, count);
  RequireAll(captured.size(), megabytes);
}

}  // namespace

Measurements MeasureClientOutput() {
  constexpr int kRounds = 5;
  ScriptedClient client;
  const TemporaryFolder folder;
  const Place place{client, folder};
  for (const std::size_t megabytes : {64, 256}) Teach(client, megabytes);
  const SideBySide result = Compare(
      kRounds, [&] { CaptureWithRunTool(place, 256); }, [&] { CaptureWithBareLoop(place, 256); });
  return {{"Output of 256 MB: RunTool to a bare loop over the same calls", result.Ratio(), "times", 1.10,
           result.Detail("RunTool", "bare loop")},
          Growth(
              "Output of 64 MB to 256 MB", kRounds, 4, [&] { CaptureWithRunTool(place, 64); },
              [&] { CaptureWithRunTool(place, 256); }, 1.1)};
}
