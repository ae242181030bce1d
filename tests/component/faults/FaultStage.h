#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "ZRKCVSStatus.h"
#include "ZRKICVSManager.h"
#include "support/Assembly.h"
#include "support/CapturedOutput.h"
#include "support/ClientReports.h"
#include "support/DialogRecorder.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"

namespace faults {

// A product "car" whose document lies in a working copy of CVS, or of Subversion with text entries or with a
// database, the interface to its manager, and a record of what is written to the debugger and of the clients
// that are started.
class FaultStage {
public:
  enum class Kind { CVS, SVN, Database };

  explicit FaultStage(Kind kind);
  FaultStage(const FaultStage&) = delete;
  FaultStage& operator=(const FaultStage&) = delete;
  ~FaultStage();

  ZRKICVSManager& Manager() const { return *manager_; }
  CATBaseUnknown_var Car() const { return products_.At("car"); }
  std::string Document() const { return folder_.Host("wc/car.CATPart"); }
  std::filesystem::path DocumentFile() const { return folder_ / "wc/car.CATPart"; }

  // Nothing when the product carries no attributes.
  std::optional<StatusAttributes> Shown() const { return ReadStatusAttributes(Car()); }
  // What the first client whose arguments hold `command` read from its input.
  std::string InputOf(const std::string& command) const;

  void AnswerQuestions(std::deque<standin::DialogAnswer> answers);
  const std::vector<standin::DialogRequest>& Dialogs() const { return user_->Requests(); }

  // How often the client was to be started, and whether it could not be.
  int Launches() const { return launches_; }
  bool LaunchFailed() const { return launchFailed_; }
  // Messages to the debugger, without the times of a refresh.
  const std::vector<std::wstring>& Messages() const { return messages_; }
  // How often the client had been started when the first of the messages came.
  int LaunchesBeforeMessages() const { return launchesBeforeMessages_; }

  // What the client reports of the document: revision 1.4, no tags.
  static std::string StatusReport();
  // That it is locked by bert.
  static std::string XMLReport();
  // That bert has taken anna's lock of this working copy, and what that alone knows: that anna holds it.
  // The client names the document in either way, by its path from the folder and by its whole path.
  std::string DatabaseReport() const;
  std::string DatabaseReportWithoutRepository() const;

  ScriptedClient Clients;
  // What an operation filled.
  ZRKCVSStatus Record;

private:
  std::string OfBothPaths(reports::Entry entry) const;

  const Session session_;
  const CapturedOutput output_;
  const TemporaryFolder folder_;
  Assembly products_{folder_};
  std::optional<DialogRecorder> user_{std::in_place};
  ZRKICVSManager_var manager_;
  int launches_ = 0;
  bool launchFailed_ = false;
  int launchesBeforeMessages_ = 0;
  std::vector<std::wstring> messages_;
};

// Whether all clients end in good time; they do once nobody holds the pipes to them.
bool AllClientsEnd();

}  // namespace faults
