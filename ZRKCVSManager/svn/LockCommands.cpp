#include "svn/LockCommands.h"

#include <initializer_list>

#include "CATISpecObject.h"
#include "product/ProductDocument.h"
#include "svn/DatabaseClient.h"
#include "svn/DatabaseStatus.h"
#include "svn/StatusReaders.h"
#include "svn/WorkingCopyForm.h"
#include "text/Text.h"

namespace zrk::svn {
namespace {

void Run(const SVNContext& context, const CATUnicodeString& arguments) {
  CATUnicodeString answer;
  tools::RunTool(context.Tools, arguments, context.WorkingFolder, answer);
}

HRESULT RunAndRefresh(const SVNContext& context, const CATBaseUnknown_var& product,
                      std::initializer_list<const char*> commands) {
  const product::ProductDocument document = product::ReachDocument(product);
  if (!document.Exists()) return E_FAIL;
  if (FormOfDocument(document.Path) == Form::Database) {
    for (const char* command : commands) RunDatabaseCommand(context, command, text::View(document.Path));
    RefreshDatabaseDocument(context, CATISpecObject_var(product));
    return S_OK;
  }
  for (const char* command : commands) Run(context, FileCommand(command, document.Path));
  RefreshSVNStatus(context, CATISpecObject_var(product));
  return S_OK;
}

}  // namespace

HRESULT SVNLock(const SVNContext& context, const CATBaseUnknown_var& product) {
  return RunAndRefresh(context, product, {"update", "lock"});
}

HRESULT SVNUnlock(const SVNContext& context, const CATBaseUnknown_var& product) {
  return RunAndRefresh(context, product, {"unlock"});
}

HRESULT SVNDelete(const SVNContext& context, const CATUnicodeString& path) {
  if (!context.Tools.IsSVN) return E_FAIL;
  if (FormOfDocument(path) == Form::Database) {
    RunDatabaseCommand(context, "delete --force", text::View(path));
    return S_OK;
  }
  Run(context, CATUnicodeString(" delete -m\"zq\" --force  \"") + path + "\"");
  return S_OK;
}

}  // namespace zrk::svn
