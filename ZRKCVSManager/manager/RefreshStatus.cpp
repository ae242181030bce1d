// The refresh of a whole tree and of one file: asking the client, filing its reports, writing attributes.

#include "attributes/StatusAttributes.h"
#include "cvs/FileArguments.h"
#include "manager/ZRKECVSManager.h"
#include "svn/DatabaseStatus.h"
#include "svn/StatusReaders.h"
#include "text/Text.h"

using namespace zrk;

void ZRKECVSManager::RefreshStatus(const CATISpecObject_var& root) {
  const tools::RunScope run(Tools());
  if (IsSVN) {
    RefreshSVNRoute();
  } else {
    RefreshCVSRoute(root);
  }
}

void ZRKECVSManager::RefreshSVNRoute() {
  SVNTimings = {};
  const auto refresh = KnowsSVNDatabase() ? svn::RefreshDatabaseTree : svn::RefreshSVNStatusTree;
  refresh(SVN(), CATISpecObject_var(this), SVNTimings);
  tools::ReportTime("SVN status check time", SVNTimings.StatusCheck);
  tools::ReportTime("XML Parsing time", SVNTimings.XMLParsing);
  tools::ReportTime("Refreshing status time (attributing)", SVNTimings.Attributing);
}

void ZRKECVSManager::RefreshCVSRoute(const CATISpecObject_var& root) {
  if (!MakeReadyForCVS(CATIProduct_var(root))) return;
  if (!root || !AttributeClass) return;

  StatusBlockTable.clear();
  // The first element stays, also empty: without any file argument the client reports on everything
  // below the working folder.
  CATListValCATUnicodeString batches;
  batches.Append({});
  std::int32_t batch = 1;
  cvs::CollectCVSFileArguments({SandboxRoot, AttributeClass}, root, batches, &batch);

  const PassTimes times = RunStatusPasses(batches);
  const tools::RunClock clock;
  attributes::WriteStatusAttributesTree({AttributeClass, StatusBlockTable, EditTable}, root);
  const tools::Ticks attributing = clock.Elapsed();

  tools::ReportTime("CVS status check time", static_cast<double>(times.Status));
  tools::ReportTime("CVS edit check time", static_cast<double>(times.Edit));
  tools::ReportTime("Refreshing status time (attributing)", static_cast<double>(attributing));
}

void ZRKECVSManager::RefreshOneFile(const CATUnicodeString& documentPath) {
  StatusBlockTable.clear();
  CATListValCATUnicodeString batches;
  batches.Append(CATUnicodeString(" ") + cvs::FileArgument(documentPath, SandboxRoot));
  RunStatusPasses(batches);
  attributes::WriteStatusAttributes({AttributeClass, StatusBlockTable, EditTable}, this);
}

CATUnicodeString ZRKECVSManager::RunOverFiles(const char* command,
                                              const CATListValCATUnicodeString& fileArguments) {
  CATUnicodeString outputs;
  for (int i = 1; i <= fileArguments.Size(); ++i) {
    CATUnicodeString output;
    RunTool(command + fileArguments[i], SandboxRoot, output);
    outputs += output;
  }
  return outputs;
}

ZRKECVSManager::PassTimes ZRKECVSManager::RunStatusPasses(const CATListValCATUnicodeString& fileArguments) {
  PassTimes times;
  const tools::RunClock statusClock;
  const CATUnicodeString statusReport = RunOverFiles(" status -v ", fileArguments);
  times.Status = statusClock.Elapsed();
  CommTime += times.Status;
  cvs::AddStatusReport(text::View(statusReport), SandboxRoot, CVSRoot, StatusBlockTable);

  const tools::RunClock editClock;
  const CATUnicodeString editReport = RunOverFiles(" -n edit ", fileArguments);
  times.Edit = editClock.Elapsed();
  CommTime = times.Edit;
  EditTable.clear();
  cvs::AddEditReport(text::View(editReport), SandboxRoot, EditTable);
  return times;
}
