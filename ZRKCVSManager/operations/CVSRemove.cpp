// Removing a file from CVS.

#include "ZRKCorServices.h"
#include "cvs/FileArguments.h"
#include "manager/ZRKECVSManager.h"

using namespace zrk;

HRESULT ZRKECVSManager::CVSRemove(const CATUnicodeString& file) {
  if (IsSVN) return E_FAIL;
  if (!CheckCVSToolPath()) return E_FAIL;
  const tools::RunScope run(Tools());
  CATUnicodeString folder;
  CATUnicodeString name;
  ZRKCorParserServices::SplitFilePath(file, folder, name);
  // RunTool puts the root in front of every tail; the client gets it twice.
  const CATUnicodeString arguments = CATUnicodeString(" -d ") + CVSRoot + " remove -f " + cvs::Quoted(name);
  CATUnicodeString answer;
  RunTool(arguments, folder, answer);
  return S_OK;
}
