#include <exception>
#include <memory>

#include "base/CallError.h"
#include "base/Encoding.h"
#include "call/CheckHostCall.h"
#include "call/CommandLine.h"
#include "call/CommandSource.h"
#include "call/ExitStatus.h"
#include "call/OutputCheck.h"
#include "call/Surroundings.h"
#include "page/Page.h"
#include "plugin/Plugin.h"
#include "report/EventLog.h"
#include "report/Report.h"
#include "run/Console.h"
#include "session/FolderSession.h"
#include "session/HostSession.h"
#include "session/SessionFile.h"
#include "terminal/OutputCapture.h"
#include "terminal/ProgressLine.h"
#include "terminal/Terminal.h"
#include "terminal/User.h"

namespace {

using namespace zrkhost;

constexpr int kStandardInput = 0;
constexpr int kStandardError = 2;

SessionDescription Describe(const Options& options) {
  if (options.SessionFile) return ReadSessionFile(PathFromNative(*options.SessionFile));
  std::optional<std::filesystem::path> root;
  if (options.Root) root = PathFromNative(*options.Root);
  return SessionOfFolder(PathFromNative(*options.Folder), root);
}

void PrepareClients(const Options& options) {
  if (options.Clients == "none") return;
  auto folder = DefaultClients();
  if (options.Clients) {
    folder = std::filesystem::absolute(PathFromNative(*options.Clients));
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error))
      throw CallError(Utf8FromPath(folder) + ": is not a folder");
  }
  if (!folder.empty() && !AppendToPath(folder))
    throw CallError(Utf8FromPath(folder) +
                    ": cannot be put into PATH: its name holds the separator of folders");
}

int Run(const Options& options) {
  CheckOutputs(options);
  const bool prompt = options.Commands.empty() && !options.CommandFile && IsTerminal(kStandardInput);
  const auto description = Describe(options);
  CheckOutputs(options, description);
  std::vector<SourcedCommand> commands;
  if (!prompt) commands = ReadCommands(options);
  PrepareClients(options);

  // Before standard output leads elsewhere, as it may be what they go to.
  std::unique_ptr<Report> report;
  if (options.Report) report = std::make_unique<Report>(PathFromNative(*options.Report));
  std::unique_ptr<Page> page;
  if (options.Page) page = std::make_unique<Page>(PathFromNative(*options.Page));

  OutputCapture output;
  const Plugin plugin(options.Plugin ? PathFromNative(*options.Plugin) : DefaultPlugin());
  const HostSession session(description);
  CheckProducts(commands, session);

  std::optional<bool> answer;
  if (options.Answer) answer = *options.Answer == "yes";
  ProgressLine progress(!options.Verbose && CanRewriteLines(kStandardError));
  User user(output, progress, answer);
  EventLog events(user, progress, options.Verbose);
  Console console(session, plugin, output, events, progress, report.get());
  if (prompt) {
    console.RunPrompt();
  } else {
    console.RunAll(commands);
  }

  output.Forward();
  bool written = true;
  if (report && !report->Write(session)) {
    PrintError(Utf8FromNative(*options.Report) + ": the report cannot be written");
    written = false;
  }
  if (page && !page->Write(session)) {
    PrintError(Utf8FromNative(*options.Page) + ": the page cannot be written");
    written = false;
  }
  if (!output.Good()) {
    PrintError("standard output cannot be written");
    written = false;
  }
  return console.Failed() || !written ? kCommandFailed : kAllWell;
}

}  // namespace

int main(int argc, char** argv) {
  HoldStandardError();
  try {
    if (IsCheckHostCall(argc, argv)) return RunCheckHostCall(argc, argv);
    int status = 0;
    const auto options = ParseCommandLine(argc, argv, status);
    return options ? Run(*options) : status;
  } catch (const std::exception& error) {
    // Whatever goes wrong once commands run is reported by the console itself.
    PrintError(error.what());
    return kNothingRun;
  }
}
