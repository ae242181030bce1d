#pragma once

#include "CATBaseUnknown.h"
#include "ZRKCVSStatus.h"
#include "svn/SVNContext.h"

// From what is known of a Subversion file to the attributes of its product.
namespace zrk::svn {

// "Comment" in the refresh of a tree: "Locked by: \n", the owner, a line of hyphens, the lock's comment. The
// comment alone when nobody is known to hold a lock.
CATUnicodeString TreeComment(const ZRKCVSStatus& record);

// "Comment" after an operation on one file: the owner, a line feed, the lock's comment.
CATUnicodeString SingleComment(const ZRKCVSStatus& record);

// Writes the attributes of a document that the working copy knows, takes them off for any other, and has the
// product redrawn. "Status" is "Edit" for a lock held here, else "Locked" for one held elsewhere, else
// "ReadOnly".
void ShowOnProduct(const SVNContext& context, const CATBaseUnknown_var& product, const ZRKCVSStatus& record,
                   const CATUnicodeString& comment);

}  // namespace zrk::svn
