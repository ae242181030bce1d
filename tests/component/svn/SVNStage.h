#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "SampleEntries.h"
#include "component/product/ProductEvents.h"
#include "support/Assembly.h"
#include "support/ClientReports.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"
#include "svn/SVNContext.h"

// What a product shows before the operation under test.
inline const StatusAttributes kOld{"7", "Edit", "R1", "old"};

// A Subversion working copy "wc" without a client, and what the Subversion operations work with there.
class SVNStage : public testing::Test {
protected:
  // Folders and files are named relative to the temporary folder.
  void WriteEntries(const std::string& folder, const std::string& entries) const {
    WriteFile(Folder / folder / ".svn" / "entries", entries::Format(10) + entries);
  }

  // In the working folder "wc".
  zrk::svn::SVNContext Context() {
    return {{true, NoText, NoText, SVNExePath, ChildOutput, ChildInput}, WorkingFolder, AttributeClass};
  }

  static std::string ForeignLockReport(const std::string& path) { return reports::ForeignLockReport(path); }
  static std::string UnlockedReport(const std::string& path) { return reports::UnlockedReport(path); }
  static std::string XMLReport(const std::string& owner) { return reports::XMLReport(owner); }

  // The arguments of the runs so far.
  std::vector<std::vector<std::string>> Arguments() const {
    std::vector<std::vector<std::string>> arguments;
    for (const ClientRun& run : Client.Runs()) arguments.push_back(run.Arguments);
    return arguments;
  }
  // Those of the runs of `svn status` on these files, in order, as a tree refresh makes them.
  std::vector<std::vector<std::string>> TreeReports(const std::vector<std::string>& files) const {
    std::vector<std::vector<std::string>> arguments;
    for (const std::string& file : files) {
      arguments.push_back({"status", "-v", "-u", Folder.Host(file)});
      arguments.push_back({"status", "-v", "-u", "--xml", Folder.Host(file)});
    }
    return arguments;
  }

  const Session Host;
  const TemporaryFolder Folder;
  ScriptedClient Client;
  RedrawnProducts Redrawn;
  Assembly Products{Folder};

  const CATUnicodeString NoText{};
  CATUnicodeString SVNExePath = Client.HostPath("svn.exe").c_str();
  CATUnicodeString WorkingFolder = Folder.Host("wc").c_str();
  ZRKIAttClass_var AttributeClass = StatusClass();
  zrk::tools::Pipe ChildOutput;
  zrk::tools::Pipe ChildInput;
};
