#include "commands/ProductCommands.h"

#include "ZRKICVS.h"
#include "base/Encoding.h"
#include "terminal/DisplayText.h"

namespace zrkhost {

namespace {

Outcome Answer(int answer) {
  Outcome outcome;
  outcome.Result = answer;
  outcome.IsAnswer = true;
  outcome.Shown = std::to_string(answer) + "\n";
  return outcome;
}

}  // namespace

Outcome RunStorage(const CommandCall& call) {
  CATUnicodeString path;
  InterfaceOf<ZRKICVS>(call.Product())->GetStorageName(path);
  Outcome outcome;
  outcome.Text = Utf8FromNative(path.ConvertToChar());
  outcome.Shown = DisplayText(*outcome.Text) + "\n";
  return outcome;
}

Outcome RunCVSable(const CommandCall& call) {
  return Answer(call.Component.IsCVSable(call.Product().Get()));
}

Outcome RunModifiable(const CommandCall& call) {
  return Answer(call.Component.IsCVSModifiable(call.Product().Get()));
}

}  // namespace zrkhost
