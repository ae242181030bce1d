#pragma once

#include <windows.h>

#include <cstdint>

#include "CATIProduct.h"
#include "CATISpecObject.h"
#include "CATListVal.h"
#include "ZRKCVSStatus.h"
#include "ZRKIAttributes.h"
#include "cvs/ReportTables.h"
#include "svn/SVNContext.h"
#include "tools/Pipe.h"
#include "tools/RunClock.h"
#include "tools/ToolRun.h"

// The manager of a product: the data extension of "ASMPRODUCT" behind ZRKICVSManager. It holds what the
// operations on the product share; the work itself is done in the rooms below (tools, cvs, svn,
// attributes), which are given the fields they need.
//
// One manager carries one operation at a time, on the caller's thread. No pipe of a client is open once
// an operation of the interface has returned.
class ZRKECVSManager : public CATBaseUnknown {
public:
  // Finds the working copy of the product's document, the attribute class and the clients. None of them
  // need be there.
  explicit ZRKECVSManager(CATBaseUnknown& product);
  ~ZRKECVSManager() override;

  static CATMetaClass* MetaObject();

  // The operations of ZRKICVSManager.
  void RefreshStatus(const CATISpecObject_var& root);
  HRESULT PrintCommTime();
  HRESULT Edit();
  HRESULT Unedit();
  HRESULT GetFileStatus(const CATIProduct_var& product, ZRKCVSStatus& record);
  HRESULT CVSRemove(const CATUnicodeString& file);
  HRESULT SVNDelete(const CATUnicodeString& file);

  // Runs the client of the working copy; see tools::RunTool.
  void RunTool(const CATUnicodeString& arguments, const CATUnicodeString& workingFolder,
               CATUnicodeString& output);
  // 1 when the path of cvs.exe is known, else 0 after a warning to the user.
  std::int32_t CheckCVSToolPath();
  // Fills the working-copy fields from the product's tree; see cvs::DiscoverWorkingCopy.
  void DiscoverWorkingCopy(const CATIProduct_var& product);
  // Fills the record from `cvs status -v` on that file; what the report does not give stays as it was.
  // Always 0.
  HRESULT QueryCVSFileStatus(const CATUnicodeString& documentPath, ZRKCVSStatus& record);

  // The CVS operations start with this: cvs.exe is known (else the user is warned) and so is the working
  // copy, looked for in the tree of the product when it is not.
  bool MakeReadyForCVS(const CATIProduct_var& product);
  // Brings the caches and the attributes of the manager's own product up to date for its one document.
  void RefreshOneFile(const CATUnicodeString& documentPath);

  // The manager's working copy is Subversion's. The document examined last decides.
  bool IsSVN = false;
  // The class of package "ZRKCVS"; null when the attribute dictionary does not know the package.
  ZRKIAttClass_var AttributeClass;
  // Standard output and error of the client that runs.
  zrk::tools::Pipe ChildOutput;
  // Of the host's process; not owned.
  HANDLE StandardOutput = nullptr;
  // Standard input of the client that runs.
  zrk::tools::Pipe ChildInput;
  // Local folder that corresponds to the repository's root folder, with a closing "\"; every key of the
  // two tables starts with it. CVS runs there.
  CATUnicodeString SandboxRoot;
  // Text of `CVS\Root`, given to cvs.exe with "-d".
  CATUnicodeString CVSRoot;
  // Empty when it was not found along PATH.
  CATUnicodeString CVSExePath;
  // The blocks of the last `cvs status -v` report.
  zrk::cvs::ReportTable StatusBlockTable;
  // The lines of the last `cvs -n edit` report, tabs turned into line feeds.
  zrk::cvs::ReportTable EditTable;
  // Has no role.
  std::int64_t SpareCounter = 0;
  // Time spent waiting for the client, in milliseconds. A CVS refresh leaves that of its edit pass.
  zrk::tools::Ticks CommTime = 0;
  // Empty when it was not found along PATH.
  CATUnicodeString SVNExePath;
  // Folder, without a closing "\", in which Subversion runs on a working copy of the text form.
  CATUnicodeString SVNWorkingFolder;
  // Folder that holds the `.svn` of a Subversion working copy with a database, without a closing "\"; empty
  // while none was found.
  CATUnicodeString SVNDatabaseRoot;
  // Of the last Subversion refresh.
  zrk::svn::SVNTimes SVNTimings;

private:
  struct PassTimes {
    zrk::tools::Ticks Status = 0;
    zrk::tools::Ticks Edit = 0;
  };

  // GetFileStatus for a document in a Subversion working copy with a database. Always 0.
  HRESULT QuerySVNFileStatus(const CATUnicodeString& documentPath, ZRKCVSStatus& record);

  zrk::tools::ToolContext Tools();
  zrk::svn::SVNContext SVN();
  // Runs a CVS command once for each element of file arguments and joins the outputs.
  CATUnicodeString RunOverFiles(const char* command, const CATListValCATUnicodeString& fileArguments);
  // Asks cvs.exe for the status of the files and then for who edits them, and adds both reports to the
  // tables: the first into an empty StatusBlockTable, which the caller has emptied.
  PassTimes RunStatusPasses(const CATListValCATUnicodeString& fileArguments);
  void RefreshSVNRoute();
  void RefreshCVSRoute(const CATISpecObject_var& root);
  bool KnowsCVSWorkingCopy() const;
  bool KnowsSVNDatabase() const;
};
