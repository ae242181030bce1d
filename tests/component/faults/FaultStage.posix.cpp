#include "component/faults/FaultStage.h"

#include <chrono>
#include <thread>

#include "component/svn/SampleEntries.h"
#include "debug/DebugChannel.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "windows/LaunchLog.h"
#include "windows/WindowsControl.h"

namespace faults {

FaultStage::FaultStage(Kind kind) {
  products_.Add("car", "wc/car.CATPart");
  if (kind == Kind::CVS) {
    WriteCVSFolder(folder_ / "wc", "/cvs/root", "wc");
  } else if (kind == Kind::Database) {
    WriteFile(folder_ / "wc/.svn/entries", "12\n");
    WriteFile(folder_ / "wc/.svn/wc.db", "SQLite format 3");
  } else {
    WriteFile(folder_ / "wc/.svn/entries",
              entries::Format(10) + entries::File(10, "car.CATPart", "9", "bert"));
  }
  standin::SetDebugListener([this](const std::wstring& message) {
    if (message.starts_with(L'\n')) return;
    if (messages_.empty()) launchesBeforeMessages_ = launches_;
    messages_.push_back(message);
  });
  standin::SetLaunchListener([this](const standin::Launch& launch) {
    ++launches_;
    if (!launch.Started) launchFailed_ = true;
  });
  manager_ = Car();
}

FaultStage::~FaultStage() {
  standin::SetLaunchListener({});
  standin::SetDebugListener({});
}

std::string FaultStage::InputOf(const std::string& command) const {
  for (const ClientRun& run : Clients.Runs()) {
    if (run.Joined().find(command) != std::string::npos) return run.Input;
  }
  return "not run";
}

void FaultStage::AnswerQuestions(std::deque<standin::DialogAnswer> answers) {
  user_.reset();
  user_.emplace(std::move(answers));
}

std::string FaultStage::StatusReport() {
  return zrk::sample::kSeparatorLine + zrk::sample::StatusBlock("wc/car.CATPart", "1.4", "Up-to-date", {});
}

std::string FaultStage::XMLReport() {
  return reports::XMLReport("bert");
}

std::string FaultStage::DatabaseReport() const {
  const reports::Entry entry{
      .Revision = "9", .Own = reports::Lock{"t1", "anna"}, .InRepository = reports::Lock{"t2", "bert"}};
  return OfBothPaths(entry);
}

std::string FaultStage::DatabaseReportWithoutRepository() const {
  return OfBothPaths({.Revision = "9", .Own = reports::Lock{"t1", "anna"}});
}

std::string FaultStage::OfBothPaths(reports::Entry entry) const {
  std::vector<reports::Entry> entries;
  for (const std::string& path : {std::string("car.CATPart"), Document()}) {
    entry.Path = path;
    entries.push_back(entry);
  }
  return reports::Report(entries);
}

bool AllClientsEnd() {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (standin::LiveChildCount() > 0) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::yield();
  }
  return true;
}

}  // namespace faults
