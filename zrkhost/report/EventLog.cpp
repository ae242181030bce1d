#include "report/EventLog.h"

#include <iostream>
#include <utility>

#include "base/Encoding.h"
#include "base/Hexadecimal.h"
#include "debug/DebugChannel.h"
#include "product/ProductModel.h"
#include "terminal/DisplayText.h"

namespace zrkhost {

using Json = nlohmann::ordered_json;

EventLog::EventLog(User& user, ProgressLine& progress, bool verbose)
    : user_(user), progress_(progress), verbose_(verbose) {
  standin::SetDebugListener([this](const std::wstring& message) { Debug(message); });
  standin::SetDialogResponder([this](const standin::DialogRequest& request) { return Dialog(request); });
  standin::SetRedrawListener([this](const CATBaseUnknown_var& product) {
    events_.push_back({{"event", "redraw"}, {"product", Utf8FromNative(standin::ProductPath(product))}});
  });
  ListenToLaunches([this](const LaunchEvent& launch) { Launch(launch); });
}

EventLog::~EventLog() {
  standin::SetDebugListener(nullptr);
  standin::SetDialogResponder(nullptr);
  standin::SetRedrawListener(nullptr);
  ListenToLaunches(nullptr);
}

std::vector<Json> EventLog::Take() {
  launches_.clear();
  return std::exchange(events_, {});
}

void EventLog::Debug(const std::wstring& message) {
  const auto text = Utf8FromWide(message);
  events_.push_back({{"event", "debug"}, {"text", text}});
  if (verbose_) std::cerr << "debug: " << DisplayText(text) << std::endl;
}

void EventLog::Launch(const LaunchEvent& launch) {
  launches_.push_back(launch);
  if (launch.Started) progress_.CountClientRun();
  const auto program = Utf8FromWide(launch.Program);
  const auto commandLine = Utf8FromWide(launch.CommandLine);
  const auto folder = Utf8FromWide(launch.Folder);
  events_.push_back({{"event", "launch"},
                     {"program", program},
                     {"commandLine", commandLine},
                     {"folder", folder},
                     {"started", launch.Started}});
  if (!verbose_) return;
  std::cerr << "launch: " << DisplayText(program) << DisplayText(commandLine) << " in " << DisplayText(folder)
            << (launch.Started ? "" : " (failed)") << std::endl;
}

standin::DialogAnswer EventLog::Dialog(const standin::DialogRequest& request) {
  const auto answer = user_.Answer(request);
  events_.push_back({{"event", "dialog"},
                     {"title", Utf8FromNative(request.Title)},
                     {"message", Utf8FromNative(request.Message)},
                     {"style", "0x" + Hexadecimal(request.Style)},
                     {"identifier", Utf8FromNative(request.Identifier)},
                     {"answer", static_cast<int>(answer)}});
  return answer;
}

}  // namespace zrkhost
