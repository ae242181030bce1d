#pragma once

#include <vector>

#include "commands/SourcedCommand.h"
#include "plugin/Plugin.h"
#include "report/EventLog.h"
#include "report/Report.h"
#include "session/HostSession.h"
#include "terminal/OutputCapture.h"
#include "terminal/ProgressLine.h"

namespace zrkhost {

// Runs commands on a host session, shows what comes of them, and keeps it for the report.
class Console {
public:
  // `report` may be null.
  Console(const HostSession& session, const Plugin& plugin, OutputCapture& output, EventLog& events,
          ProgressLine& progress, Report* report);

  // Up to the first `quit`.
  void RunAll(const std::vector<SourcedCommand>& commands);
  // Reads lines from the terminal until `quit` or the end of input. A line that is no command, or is about no
  // product of the tree, is reported and changes nothing.
  void RunPrompt();

  // Whether a command gave a result other than 0, or could not be carried out.
  bool Failed() const { return failed_; }

private:
  // False after `quit`.
  bool Run(const Command& command);
  void ShowWhyNothingIsShown(const Command& command, const Refresh& refresh) const;
  std::string Tree() const;

  const HostSession& session_;
  const Plugin& plugin_;
  OutputCapture& output_;
  EventLog& events_;
  ProgressLine& progress_;
  Report* report_;
  bool failed_ = false;
};

// On standard error, UTF-8, with the program's name in front and without control characters.
void PrintError(const std::string& message);

}  // namespace zrkhost
