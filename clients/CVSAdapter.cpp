#include "CVSArguments.h"
#include "ClientOutput.h"
#include "InstalledClient.h"

int main(int argc, char** argv) {
  const CVSCall call = TranslateCVSCall({argv + (argc > 0 ? 1 : 0), argv + argc});

  LineEndTranslator lineEnds;
  RevisionTrimmer revisions;
  std::string trimmed;
  std::string translated;
  return RunInstalledClient({"cvs", "cvs.exe", "cvs"}, call.Arguments, [&](std::string_view piece) {
    if (call.Command == "status") {
      trimmed.clear();
      revisions.Translate(piece, trimmed);
      piece = trimmed;
    }
    translated.clear();
    lineEnds.Translate(piece, translated);
    return WriteToStandardOutput(translated);
  });
}
