#include <cstdlib>

#include "ClientOutput.h"
#include "InstalledClient.h"
#include "SVNArguments.h"
#include "SVNEntriesKeeper.h"

namespace {

const InstalledClient kClient = {"svn", "svn.exe", "subversion"};

std::string Capture(const std::vector<std::string>& arguments) {
  std::string output;
  RunInstalledClient(kClient, arguments, [&](std::string_view piece) {
    output += piece;
    return true;
  });
  return output;
}

}  // namespace

int main(int argc, char** argv) {
  const SVNCall call = TranslateSVNCall({argv + (argc > 0 ? 1 : 0), argv + argc});

  // The client's --non-interactive does not reach ssh, which would ask for a password on the terminal.
  setenv("SVN_SSH", "ssh -q -o BatchMode=yes --", 0);

  LineEndTranslator lineEnds;
  std::string translated;
  const int status = RunInstalledClient(kClient, call.Arguments, [&](std::string_view piece) {
    translated.clear();
    lineEnds.Translate(piece, translated);
    return WriteToStandardOutput(translated);
  });
  // Before this process ends, and with it the output that the component waits for: it reads the entries
  // next.
  KeepSVNEntries(call.Paths, Capture);
  return status;
}
