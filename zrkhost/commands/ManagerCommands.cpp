#include "commands/ManagerCommands.h"

#include "ZRKICVSManager.h"
#include "base/Encoding.h"
#include "base/Hexadecimal.h"
#include "commands/HostFile.h"
#include "commands/ShownStatus.h"
#include "commands/StatusRecordText.h"
#include "session/ProductFacts.h"
#include "terminal/DisplayText.h"

namespace zrkhost {

namespace {

ZRKICVSManager_var RootManager(const CommandCall& call) {
  return InterfaceOf<ZRKICVSManager>(call.Session.Root().Product);
}

ZRKICVSManager_var Manager(const CommandCall& call) {
  return call.Given.ByRoot ? RootManager(call) : InterfaceOf<ZRKICVSManager>(call.Product());
}

// `now`: what the product shows behind the command.
Outcome WithResult(const CommandCall& call, HRESULT result, const std::string& now = "") {
  Outcome outcome;
  outcome.Result = result;
  const auto shown =
      result < 0 ? "0x" + Hexadecimal(static_cast<std::uint32_t>(result)) : std::to_string(result);
  outcome.Shown = DisplayText(Utf8FromNative(call.Given.Line)) + ": result " + shown + now + "\n";
  return outcome;
}

CATUnicodeString FileOf(const CommandCall& call) {
  return HostFile(call.Given.File).c_str();
}

}  // namespace

Outcome RunRefresh(const CommandCall& call) {
  Manager(call)->RefreshStatus(call.Product());
  const Place* asked = call.Given.ByRoot ? &call.Session.Root() : &call.Where;
  return {.ShowTree = true, .Refreshed = Refresh{.Asked = asked, .Given = &call.Where}};
}

Outcome RunStatus(const CommandCall& call) {
  const CATBaseUnknown_var product =
      call.Given.Instance ? call.Product() : CATBaseUnknown_var(ReferenceOf(call.Product()));
  StatusRecord record(call.Component);
  const HRESULT result = Manager(call)->GetFileStatus(product, record.Get());
  Outcome outcome;
  outcome.Result = result;
  outcome.Record = RecordFields(record.Get());
  outcome.Shown = ShowRecord(*outcome.Record);
  return outcome;
}

Outcome RunEdit(const CommandCall& call) {
  const HRESULT result = Manager(call)->Edit();
  return WithResult(call, result, ShownStatus(AttributesOf(call.Product())));
}

Outcome RunUnedit(const CommandCall& call) {
  const HRESULT result = Manager(call)->Unedit();
  return WithResult(call, result, ShownStatus(AttributesOf(call.Product())));
}

Outcome RunRemove(const CommandCall& call) {
  return WithResult(call, RootManager(call)->CVSRemove(FileOf(call)));
}

Outcome RunDelete(const CommandCall& call) {
  return WithResult(call, RootManager(call)->SVNDelete(FileOf(call)));
}

Outcome RunCommTime(const CommandCall& call) {
  Outcome outcome;
  outcome.Result = RootManager(call)->PrintCommTime();
  return outcome;
}

}  // namespace zrkhost
