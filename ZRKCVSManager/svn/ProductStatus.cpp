#include "svn/ProductStatus.h"

#include "product/Redraw.h"
#include "product/StatusInstance.h"

namespace zrk::svn {
namespace {

const char* StatusWord(const ZRKCVSStatus& record) {
  if (!record.IsVersioned) return "Unversioned";
  if (record.IsLockedHere) return "Edit";
  return record.IsLockedByOther ? "Locked" : "ReadOnly";
}

}  // namespace

CATUnicodeString TreeComment(const ZRKCVSStatus& record) {
  if (record.LockOwner.GetLengthInByte() < 1) return record.AuxText;
  return CATUnicodeString("Locked by: \n") + record.LockOwner + "\n-------------\n" + record.AuxText;
}

CATUnicodeString SingleComment(const ZRKCVSStatus& record) {
  return record.LockOwner + "\n" + record.AuxText;
}

void ShowOnProduct(const SVNContext& context, const CATBaseUnknown_var& product, const ZRKCVSStatus& record,
                   const CATUnicodeString& comment) {
  if (record.IsInEntries) {
    product::WriteStatusValues(product, context.AttributeClass,
                               {record.WorkingRevision, StatusWord(record), record.ExistingTags, comment});
  } else {
    product::RemoveInstance(product, context.AttributeClass);
  }
  product::Redraw(product);
}

}  // namespace zrk::svn
