// Taking the document of the manager's product for editing.

#include <windows.h>

#include <cstdio>

#include "CATMsgCatalog.h"
#include "cvs/FileArguments.h"
#include "manager/ZRKECVSManager.h"
#include "product/ProductDocument.h"
#include "product/Redraw.h"
#include "product/StatusInstance.h"
#include "svn/LockCommands.h"
#include "text/Text.h"
#include "tools/BlockingDialog.h"

using namespace zrk;

namespace {

constexpr HRESULT kMessageShown = 1;

CATUnicodeString WarningTitle() {
  return CATMsgCatalog::BuildMessage("ZRKCVSEditCmd", "warning", nullptr, 0, "Warning!!!");
}

// `answer` is the client's "U <file>".
void ShowNewerVersion(CATUnicodeString answer) {
  answer.ReplaceSubString("U ", "");
  tools::DisplayBlocked(tools::DialogKind::Notice, [&] {
    const CATUnicodeString title = WarningTitle();
    const CATUnicodeString message =
        CATMsgCatalog::BuildMessage("ZRKCVSEditCmd", "updatewarning", &answer, 1,
                                    CATUnicodeString("There is a newer version of ") + answer +
                                        " in the repository, please do an update first.");
    return tools::DialogTexts{message, title};
  });
}

void ShowMessage(const CATUnicodeString& message) {
  tools::DisplayBlocked(tools::DialogKind::Notice, [&] {
    return tools::DialogTexts{message, WarningTitle()};
  });
}

}  // namespace

HRESULT ZRKECVSManager::Edit() {
  const tools::RunScope run(Tools());
  const CATBaseUnknown_var own(this);
  if (IsSVN) return svn::SVNLock(SVN(), own);
  if (!MakeReadyForCVS(CATIProduct_var(own))) return E_FAIL;
  const product::ProductDocument document = product::ReachDocument(own);
  if (!document.Exists()) return E_FAIL;
  const CATUnicodeString path = cvs::FileArgument(document.Path, SandboxRoot);

  CATUnicodeString answers;
  RunTool(CATUnicodeString("-n -q update ") + path, SandboxRoot, answers);
  if (text::View(answers).starts_with('U')) {
    wprintf(L"do update first\n");
    ShowNewerVersion(answers);
    product::Redraw(own);
    return E_FAIL;
  }
  RunTool(CATUnicodeString("-q -x edit -z -c ") + path, SandboxRoot, answers);

  const ZRKIAttInstance_var instance = product::FindOrAddInstance(own, AttributeClass);
  if (!instance && ZRKIAttExtendable_var(own)) return E_FAIL;
  const CATICkeParm_var status = product::GetParameter(instance, "Status");
  if (!status || answers.GetLengthInByte() > 0) {
    ShowMessage(answers);
    product::Redraw(own);
    return kMessageShown;
  }
  status->Valuate("Edit");
  ZRKCVSStatus record;
  QueryCVSFileStatus(document.Path, record);
  product::SetParameter(instance, "Revision", record.WorkingRevision);
  product::SetParameter(instance, "Release", record.ExistingTags);
  product::Redraw(own);
  return S_OK;
}
