#include "svn/StatusReaders.h"

#include <optional>

#include "product/ProductDocument.h"
#include "product/ProductTree.h"
#include "product/StatusInstance.h"
#include "svn/EntriesFile.h"
#include "svn/ProductStatus.h"
#include "svn/StatusReport.h"
#include "tools/RunClock.h"

namespace zrk::svn {
namespace {

constexpr const char* kStatusCommand = "status -v -u";
constexpr const char* kXMLStatusCommand = "status -v -u --xml";

CATUnicodeString RunReport(const SVNContext& context, const char* command, const CATUnicodeString& path) {
  CATUnicodeString report;
  tools::RunTool(context.Tools, FileCommand(command, path), context.WorkingFolder, report);
  return report;
}

}  // namespace

void RefreshInTree(const SVNContext& context, const CATBaseUnknown_var& product, const CATUnicodeString& path,
                   SVNTimes& times) {
  const tools::RunClock statusClock;
  ZRKCVSStatus record;
  ReadSVNEntry(path.ConvertToChar(), record);
  const CATUnicodeString report = RunReport(context, kStatusCommand, path);
  times.StatusCheck += static_cast<double>(statusClock.Elapsed());

  const tools::RunClock xmlClock;
  const CATUnicodeString xmlReport = RunReport(context, kXMLStatusCommand, path);
  if (const std::optional<CATUnicodeString> owner = FirstLockOwner(xmlReport)) record.LockOwner = *owner;
  record.IsLockedByOther = ShowsForeignLock(report);
  times.XMLParsing += static_cast<double>(xmlClock.Elapsed());

  const tools::RunClock attributeClock;
  ShowOnProduct(context, product, record, TreeComment(record));
  times.Attributing += static_cast<double>(attributeClock.Elapsed());
}

std::int32_t RefreshSVNStatusTree(const SVNContext& context, const CATBaseUnknown_var& product,
                                  SVNTimes& times) {
  product::WalkProductTree(product, [&](const CATBaseUnknown_var& object) {
    const product::ProductDocument document = product::ReachDocumentOrClear(object, context.AttributeClass);
    if (document.Exists()) RefreshInTree(context, object, document.Path, times);
    return document.Exists();
  });
  return 0;
}

std::int32_t RefreshSVNStatus(const SVNContext& context, const CATBaseUnknown_var& product) {
  const product::ProductDocument document = product::ReachDocumentOrClear(product, context.AttributeClass);
  if (!document.Exists()) return 0;
  ZRKCVSStatus record;
  ReadSVNEntry(document.Path.ConvertToChar(), record);
  record.IsLockedByOther = ShowsForeignLock(RunReport(context, kStatusCommand, document.Path));
  ShowOnProduct(context, product, record, SingleComment(record));
  return 0;
}

}  // namespace zrk::svn
