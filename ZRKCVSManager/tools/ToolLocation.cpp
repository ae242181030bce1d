#include "tools/ToolLocation.h"

#include "CATMsgCatalog.h"
#include "ZRKCorServices.h"
#include "tools/BlockingDialog.h"

namespace zrk::tools {

void LocateTools(CATUnicodeString& cvsExePath, CATUnicodeString& svnExePath) {
  ZRKCorEnvVarManager::GetRuntimeFilePath("PATH", "cvs.exe", cvsExePath);
  ZRKCorEnvVarManager::GetRuntimeFilePath("PATH", "svn.exe", svnExePath);
}

std::int32_t CheckCVSToolPath(const CATUnicodeString& cvsExePath) {
  if (cvsExePath.GetLengthInChar() > 0) return 1;
  DisplayBlocked(DialogKind::Notice, [] {
    return DialogTexts{CATMsgCatalog::BuildMessage("ZRKCVSEditCmd", "CVSExePathNotFound", nullptr, 0,
                                                   "Path of cvs.exe is not specified"),
                       "Version Control"};
  });
  return 0;
}

}  // namespace zrk::tools
