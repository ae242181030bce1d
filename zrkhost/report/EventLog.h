#pragma once

#include <nlohmann/json.hpp>
#include <vector>

#include "report/LaunchEvents.h"
#include "terminal/ProgressLine.h"
#include "terminal/User.h"

namespace zrkhost {

// Records, in the order in which they happen, the messages to the debugger, the dialogs, the launches of
// clients and the redraws, and lets the user answer the dialogs. There can be one at a time.
class EventLog {
public:
  // `verbose`: launches and debugger messages also go to standard error as they happen.
  // `progress` learns of the clients that are run.
  EventLog(User& user, ProgressLine& progress, bool verbose);
  ~EventLog();
  EventLog(const EventLog&) = delete;
  EventLog& operator=(const EventLog&) = delete;

  // Gives the events since the last call, as they stand in the report.
  std::vector<nlohmann::ordered_json> Take();
  // The launches since that call.
  const std::vector<LaunchEvent>& Launches() const { return launches_; }

private:
  void Debug(const std::wstring& message);
  void Launch(const LaunchEvent& launch);
  standin::DialogAnswer Dialog(const standin::DialogRequest& request);

  User& user_;
  ProgressLine& progress_;
  bool verbose_;
  std::vector<nlohmann::ordered_json> events_;
  std::vector<LaunchEvent> launches_;
};

}  // namespace zrkhost
