// What a client writes, captured by RunTool and by a bare read() loop.

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "Measurement.h"
#include "core/HostPath.h"
#include "support/ScriptedClient.h"
#include "tools/ToolRun.h"

namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20;
constexpr std::string_view kLine = "   Repository revision:\t1.5\t/cvs/root/car/wheel left.CATPart,v";

// Lines of 64 bytes; the argument tells the client how many megabytes to write.
void Teach(ScriptedClient& client, std::size_t megabytes) {
  client.When("write " + std::to_string(megabytes))
      .Repeat(megabytes * kMegabyte / (kLine.size() + 2), std::string(kLine) + "\r\n");
}

void CaptureWithRunTool(const ScriptedClient& client, std::size_t megabytes) {
  const CATUnicodeString none;
  const CATUnicodeString program = client.HostPath("svn.exe").c_str();
  zrk::tools::Pipe output;
  zrk::tools::Pipe input;
  const zrk::tools::ToolContext context{true, none, none, program, output, input};
  const zrk::tools::RunScope run(context);
  CATUnicodeString captured;
  zrk::tools::RunTool(context, (" write " + std::to_string(megabytes)).c_str(), "\\tmp", captured);
  if (captured.GetLengthInByte() < static_cast<int>(megabytes * kMegabyte - 100)) {
    throw std::runtime_error("the client's output was not captured whole");
  }
}

void CaptureWithRead(const ScriptedClient& client, std::size_t megabytes, char* buffer, std::size_t room) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("no pipe");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, ends[0]);
  posix_spawn_file_actions_addclose(&actions, ends[1]);
  const std::string program = standin::FilePath(client.HostPath("svn.exe")).string();
  std::string count = std::to_string(megabytes);
  char name[] = "svn";
  char write[] = "write";
  char* const arguments[] = {name, write, count.data(), nullptr};
  pid_t child = 0;
  const int error = posix_spawn(&child, program.c_str(), &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  if (error != 0) throw std::runtime_error("the client does not start");
  std::size_t used = 0;
  for (;;) {
    const ssize_t size = read(ends[0], buffer + used, room - used);
    if (size <= 0) break;
    used += static_cast<std::size_t>(size);
  }
  close(ends[0]);
  waitpid(child, nullptr, 0);
}

}  // namespace

Measurements MeasureClientOutput() {
  constexpr int kRounds = 5;
  ScriptedClient client;
  for (const std::size_t megabytes : {64, 256}) Teach(client, megabytes);
  const SideBySide result = Compare(
      kRounds, [&] { CaptureWithRunTool(client, 256); },
      [&] {
        // Not cleared: its memory costs no more than that of RunTool's output.
        constexpr std::size_t kRoom = 257 * kMegabyte;
        const auto buffer = std::make_unique_for_overwrite<char[]>(kRoom);
        CaptureWithRead(client, 256, buffer.get(), kRoom);
      });
  return {{"Output of 256 MB: RunTool to a bare read() loop", result.Ratio(), "times", 1.25,
           result.Detail("RunTool", "read()")},
          Growth(
              "Output of 64 MB to 256 MB", kRounds, 4, [&] { CaptureWithRunTool(client, 64); },
              [&] { CaptureWithRunTool(client, 256); }, 1.1)};
}
