#include "run/Console.h"

#include <chrono>
#include <iostream>

#include "base/CallError.h"
#include "base/Encoding.h"
#include "commands/CommandCompletion.h"
#include "run/RefreshReason.h"
#include "session/ProductFacts.h"
#include "terminal/DisplayText.h"
#include "terminal/LineEditor.h"
#include "terminal/Terminal.h"
#include "terminal/TreePrinter.h"

namespace zrkhost {

Console::Console(const HostSession& session, const Plugin& plugin, OutputCapture& output, EventLog& events,
                 ProgressLine& progress, Report* report)
    : session_(session),
      plugin_(plugin),
      output_(output),
      events_(events),
      progress_(progress),
      report_(report) {}

void Console::RunAll(const std::vector<SourcedCommand>& commands) {
  for (const auto& [source, command] : commands) {
    if (!Run(command)) return;
  }
}

void Console::RunPrompt() {
  LineEditor editor("zrkhost> ", [this](std::string_view line) { return CompleteCommand(line, session_); });
  std::string line;
  for (;;) {
    if (!editor.Read(line)) {
      std::cerr << std::endl;
      return;
    }
    try {
      const auto command = ParseCommand(line);
      if (!command) continue;
      CheckProduct(*command, session_);
      if (!Run(*command)) return;
    } catch (const CallError& error) {
      PrintError(error.what());
    }
  }
}

bool Console::Run(const Command& command) {
  // What happened before the command, as when the library was loaded, is not the command's.
  output_.Take();
  events_.Take();
  Outcome outcome;
  const auto start = std::chrono::steady_clock::now();
  try {
    const ProgressLine::Work work(progress_, Utf8FromNative(command.Line));
    outcome = RunCommand(command, session_, plugin_);
  } catch (const std::exception& error) {
    PrintError(Utf8FromNative(command.Line + ": " + error.what()));
    failed_ = true;
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  auto output = output_.Take();
  output_.Write(outcome.ShowTree ? Tree() : outcome.Shown);
  if (outcome.Refreshed) ShowWhyNothingIsShown(command, *outcome.Refreshed);
  failed_ = failed_ || outcome.Failed();
  if (report_) report_->Add({command, outcome, seconds.count(), std::move(output), events_.Take()});
  return !outcome.Quit;
}

void Console::ShowWhyNothingIsShown(const Command& command, const Refresh& refresh) const {
  const auto reason = WhyNothingIsShown(session_, refresh, events_.Launches());
  if (reason) PrintError(DisplayText(Utf8FromNative(command.Line) + ": " + *reason));
}

std::string Console::Tree() const {
  std::vector<TreeRow> rows;
  for (const Place& place : session_.Places()) {
    TreeRow row{.Depth = place.Depth, .Product = Utf8FromNative(place.Name), .Values = {}};
    if (const auto attributes = AttributesOf(place.Product)) {
      for (const auto& [name, value] : *attributes) row.Values.push_back(value);
    }
    rows.push_back(std::move(row));
  }
  const int terminal = output_.RealOutput();
  return PrintTree(rows, session_.Parameters(),
                   {.Width = TerminalWidth(terminal), .Colours = TakesColours(terminal)});
}

void PrintError(const std::string& message) {
  std::cerr << "zrkhost: " << DisplayText(message, LineBreaks::Keep) << std::endl;
}

}  // namespace zrkhost
