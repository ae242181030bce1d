#pragma once

#include <string>

#include "support/ScriptedClient.h"
#include "support/TemporaryFolder.h"
#include "tools/ToolRun.h"

// What a run of a client needs, with the scripted clients in place.
class ToolRunner {
public:
  ToolRunner()
      : CVSExePath(Client.HostPath("cvs.exe").c_str()), SVNExePath(Client.HostPath("svn.exe").c_str()) {}

  zrk::tools::ToolContext Context() {
    return {IsSVN, CVSRoot, CVSExePath, SVNExePath, ChildOutput, ChildInput};
  }

  // Runs the client in the folder and gives what then stands in an output that held `before`. The pipes
  // stay as RunTool leaves them.
  std::string Run(const char* arguments = "status", const char* before = "") {
    return RunIn(Folder.Host(), arguments, before);
  }
  std::string RunIn(const std::string& workingFolder, const char* arguments = "status",
                    const char* before = "") {
    CATUnicodeString output(before);
    zrk::tools::RunTool(Context(), arguments, workingFolder.c_str(), output);
    return output.ConvertToChar();
  }

  // What the client of the last run has read from its standard input.
  std::string ClientInput() const {
    const auto runs = Client.Runs();
    return runs.empty() ? "not run" : runs.back().Input;
  }

  void ClosePipes() { const zrk::tools::RunScope ending(Context()); }

  ScriptedClient Client;
  TemporaryFolder Folder;
  bool IsSVN = false;
  CATUnicodeString CVSRoot = "/cvs/root";
  CATUnicodeString CVSExePath;
  CATUnicodeString SVNExePath;
  zrk::tools::Pipe ChildOutput;
  zrk::tools::Pipe ChildInput;
};
