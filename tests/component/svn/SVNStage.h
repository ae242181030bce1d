#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "SampleEntries.h"
#include "component/product/ProductEvents.h"
#include "support/Assembly.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"
#include "svn/SVNContext.h"

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

  // " O " stands where the client shows a lock held elsewhere.
  static std::string ForeignLockReport(const std::string& path) {
    return "     O           12        9 anna         " + path + "\r\nStatus against revision:     12\r\n";
  }
  static std::string UnlockedReport(const std::string& path) {
    return "                 12        9 anna         " + path + "\r\nStatus against revision:     12\r\n";
  }
  static std::string XMLReport(const std::string& owner) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<status>\r\n<target\r\n   path=\"x\">\r\n"
           "<entry\r\n   path=\"x\">\r\n<wc-status\r\n   item=\"normal\"\r\n   revision=\"12\">\r\n"
           "</wc-status>\r\n<repos-status\r\n   props=\"none\"\r\n   item=\"none\">\r\n<lock>\r\n"
           "<token>opaquelocktoken:1</token>\r\n<owner>" +
           owner +
           "</owner>\r\n<created>2026-11-20T10:16:00.000000Z</created>\r\n</lock>\r\n</repos-status>\r\n"
           "</entry>\r\n<against\r\n   revision=\"12\"/>\r\n</target>\r\n</status>\r\n";
  }

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
