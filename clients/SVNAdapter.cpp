#include <cstdlib>

#include "ClientOutput.h"
#include "InstalledClient.h"
#include "SVNArguments.h"

int main(int argc, char** argv) {
  // The client's --non-interactive does not reach ssh, which would ask for a password on the terminal.
  setenv("SVN_SSH", "ssh -q -o BatchMode=yes --", 0);

  const InstalledClient client{"svn", "svn.exe", "subversion"};
  const SVNCall call = TranslateSVNCall({argv + (argc > 0 ? 1 : 0), argv + argc});
  if (call.IsForTodaysClient) return BecomeInstalledClient(client, call.Arguments);

  LineEndTranslator lineEnds;
  std::string translated;
  return RunInstalledClient(client, call.Arguments, [&](std::string_view piece) {
    translated.clear();
    lineEnds.Translate(piece, translated);
    return WriteToStandardOutput(translated);
  });
}
