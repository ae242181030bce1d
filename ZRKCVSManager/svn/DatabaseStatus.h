#pragma once

#include <cstdint>

#include "ZRKCVSStatus.h"
#include "svn/SVNContext.h"
#include "tools/RunClock.h"

// Bringing the status attributes of products up to date whose documents lie in Subversion working copies with
// a database. What they show comes from one report of the client for a whole working copy:
//
//   "Revision"  the last committed revision; empty when there is none
//   "Status"    "Edit" when this working copy holds the lock, "Locked" when somebody else does, else
//               "ReadOnly"
//   "Release"   empty
//   "Comment"   the lock's owner and comment; each operation has its own form
//
// A document that the working copy does not hold, or that lies in none, takes the attributes off its product;
// either way the product is redrawn. A product that cannot have a document loses its attributes too, without
// a redraw.
namespace zrk::svn {

// Refreshes a product and all below it, with one client run for each working copy, in the deepest folder that
// holds all its documents; two when the repository cannot be reached. A document that lies in a working copy
// of the text form is refreshed as that asks for. Below a product without a document the walk does not go.
// Adds to `times`: the runs, the reading of their reports, the writing. Always 0.
std::int32_t RefreshDatabaseTree(const SVNContext& context, const CATBaseUnknown_var& product,
                                 SVNTimes& times);

// Refreshes one product whose document lies in such a working copy. "Comment" is the owner, a line feed and
// the lock's comment. Always 0.
std::int32_t RefreshDatabaseDocument(const SVNContext& context, const CATBaseUnknown_var& product);

// Fills the record for the file of that full path: File is its name, Status the working copy's word for it,
// and for one that the working copy holds see FillRecord. A file that the client does not name leaves the
// record as it was. Gives the time of the client's runs.
tools::Ticks QueryDatabaseFile(const SVNContext& context, const CATUnicodeString& path, ZRKCVSStatus& record);

}  // namespace zrk::svn
