#include "manager/ZRKECVSManager.h"

#include <iostream>
#include <string>

#include "ZRKAttPackageBaseServices.h"
#include "cvs/FileArguments.h"
#include "cvs/StatusBlock.h"
#include "cvs/WorkingCopy.h"
#include "product/ProductDocument.h"
#include "svn/DatabaseStatus.h"
#include "svn/LockCommands.h"
#include "svn/WorkingCopyForm.h"
#include "text/Text.h"
#include "tools/ToolLocation.h"

using namespace zrk;

ZRKECVSManager::ZRKECVSManager(CATBaseUnknown& product) : CATBaseUnknown(product) {
  if (const CATIProduct_var own{this}) DiscoverWorkingCopy(own);
  StandardOutput = GetStdHandle(STD_OUTPUT_HANDLE);
  if (const ZRKIAttDictionary_var dictionary = ZRKAttPackageBaseServices::GetDicoLookUp()) {
    AttributeClass = dictionary->LookUpClass("ZRKCVS");
  }
  tools::LocateTools(CVSExePath, SVNExePath);
}

ZRKECVSManager::~ZRKECVSManager() = default;

HRESULT ZRKECVSManager::PrintCommTime() {
  // As text, whatever format the host's code left the stream in.
  std::cout << " Total CVS Comm Time: " + std::to_string(CommTime) << std::endl;
  CommTime = 0;
  return S_OK;
}

HRESULT ZRKECVSManager::GetFileStatus(const CATIProduct_var& product, ZRKCVSStatus& record) {
  if (!product || FAILED(product->TestReference())) return S_OK;
  const product::ProductDocument document = product::ReachDocument(product);
  if (document.Path.GetLengthInByte() == 0) return S_OK;
  const tools::RunScope run(Tools());
  if (IsSVN) {
    const svn::Form form = svn::FormOfDocument(document.Path);
    if (form == svn::Form::Database) return QuerySVNFileStatus(document.Path, record);
    if (form == svn::Form::None && KnowsSVNDatabase()) return S_OK;
  }
  return QueryCVSFileStatus(document.Path, record);
}

HRESULT ZRKECVSManager::SVNDelete(const CATUnicodeString& file) {
  const tools::RunScope run(Tools());
  return svn::SVNDelete(SVN(), file);
}

void ZRKECVSManager::RunTool(const CATUnicodeString& arguments, const CATUnicodeString& workingFolder,
                             CATUnicodeString& output) {
  tools::RunTool(Tools(), arguments, workingFolder, output);
}

std::int32_t ZRKECVSManager::CheckCVSToolPath() {
  return tools::CheckCVSToolPath(CVSExePath);
}

void ZRKECVSManager::DiscoverWorkingCopy(const CATIProduct_var& product) {
  cvs::WorkingCopy workingCopy{IsSVN, SVNWorkingFolder, SandboxRoot, CVSRoot, SVNDatabaseRoot};
  cvs::DiscoverWorkingCopy(product, workingCopy);
  IsSVN = workingCopy.IsSVN;
  SVNWorkingFolder = workingCopy.SVNWorkingFolder;
  SandboxRoot = workingCopy.SandboxRoot;
  CVSRoot = workingCopy.CVSRoot;
  SVNDatabaseRoot = workingCopy.SVNDatabaseRoot;
}

HRESULT ZRKECVSManager::QueryCVSFileStatus(const CATUnicodeString& documentPath, ZRKCVSStatus& record) {
  const CATUnicodeString arguments =
      CATUnicodeString(" status -v ") + cvs::FileArgument(documentPath, SandboxRoot);
  CATUnicodeString report;
  const tools::RunClock clock;
  RunTool(arguments, SandboxRoot, report);
  CommTime += clock.Elapsed();
  cvs::ParseCVSStatusBlock(text::View(report), record);
  return S_OK;
}

HRESULT ZRKECVSManager::QuerySVNFileStatus(const CATUnicodeString& documentPath, ZRKCVSStatus& record) {
  CommTime += svn::QueryDatabaseFile(SVN(), documentPath, record);
  return S_OK;
}

bool ZRKECVSManager::KnowsSVNDatabase() const {
  return SVNDatabaseRoot.GetLengthInByte() > 0;
}

bool ZRKECVSManager::KnowsCVSWorkingCopy() const {
  return SandboxRoot.GetLengthInByte() > 0 && CVSRoot.GetLengthInByte() > 0;
}

bool ZRKECVSManager::MakeReadyForCVS(const CATIProduct_var& product) {
  if (!CheckCVSToolPath()) return false;
  if (product && !KnowsCVSWorkingCopy()) DiscoverWorkingCopy(product);
  return KnowsCVSWorkingCopy();
}

tools::ToolContext ZRKECVSManager::Tools() {
  return {IsSVN, CVSRoot, CVSExePath, SVNExePath, ChildOutput, ChildInput};
}

svn::SVNContext ZRKECVSManager::SVN() {
  return {Tools(), SVNWorkingFolder, AttributeClass};
}
