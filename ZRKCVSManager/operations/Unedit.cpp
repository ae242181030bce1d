// Giving the document of the manager's product back.

#include <optional>

#include "CATMsgCatalog.h"
#include "cvs/FileArguments.h"
#include "manager/ZRKECVSManager.h"
#include "product/ProductDocument.h"
#include "product/StatusInstance.h"
#include "svn/LockCommands.h"
#include "tools/BlockingDialog.h"

using namespace zrk;

namespace {

constexpr HRESULT kDeclined = 1;

bool IsTakenForEditing(const ZRKIAttInstance_var& instance) {
  const CATICkeParm_var status = product::GetParameter(instance, "Status");
  return status && status->HasValue() && status->AsText() == "Edit";
}

// Shows what the client says, its question in the installation's words. Nothing when there is nobody to
// be asked.
std::optional<int> AskUser(CATUnicodeString output) {
  return tools::DisplayBlocked(tools::DialogKind::Question, [&] {
    const CATUnicodeString question =
        CATMsgCatalog::BuildMessage("ZRKCVSUneditCmd", "uneditmsg", nullptr, 0, output);
    output.ReplaceSubString("has been modified; revert changes?", question);
    return tools::DialogTexts{output, "CVS"};
  });
}

}  // namespace

HRESULT ZRKECVSManager::Unedit() {
  const tools::RunScope run(Tools());
  const CATBaseUnknown_var own(this);
  if (IsSVN) return svn::SVNUnlock(SVN(), own);
  if (!MakeReadyForCVS(CATIProduct_var(own))) return E_FAIL;
  const product::ProductDocument document = product::ReachDocument(own);
  if (!document.Exists()) return E_FAIL;

  RefreshOneFile(document.Path);
  if (!IsTakenForEditing(product::FindInstance(own, AttributeClass))) return E_FAIL;

  CATUnicodeString output;
  RunTool(CATUnicodeString("-q -x unedit ") + cvs::FileArgument(document.Path, SandboxRoot), SandboxRoot,
          output);
  if (output.GetLengthInByte() > 0) {
    const std::optional<int> answer = AskUser(output);
    const char* const reply = !answer ? nullptr : *answer == tools::kAnswerYes ? "yes" : "no";
    tools::AnswerTool(Tools(), reply);
    if (answer && *answer != tools::kAnswerYes) return kDeclined;
  }
  RefreshOneFile(document.Path);
  return S_OK;
}
