#pragma once

#include <cstdint>

#include "svn/SVNContext.h"

// Bringing the status attributes of products in a Subversion working copy of the text form up to date. What
// they show comes from the entries file beside each document and from the client's status reports:
//
//   "Revision"  the last committed revision, from the entries file
//   "Status"    "Edit" when the entries file holds this working copy's lock, else "Locked" when the text
//               report shows somebody else's, else "ReadOnly"
//   "Release"   empty
//   "Comment"   the lock owner; each operation has its own form
//
// A document that the entries file does not list takes the attributes off its product; either way the
// product is redrawn. A product that cannot have a document loses its attributes too, without a redraw.
namespace zrk::svn {

// Refreshes a product and all below it, with two client runs for each document. Below a product without
// a document the walk does not go. The owner comes from the XML report if that names one, else from the
// entries file; "Comment" is empty without an owner. Adds to `times`. Always 0.
std::int32_t RefreshSVNStatusTree(const SVNContext& context, const CATBaseUnknown_var& product,
                                  SVNTimes& times);

// What it does with one product that has a document of that path.
void RefreshInTree(const SVNContext& context, const CATBaseUnknown_var& product, const CATUnicodeString& path,
                   SVNTimes& times);

// Refreshes one product with one client run. The owner comes from the entries file alone; "Comment" is
// the owner and a line feed. Always 0.
std::int32_t RefreshSVNStatus(const SVNContext& context, const CATBaseUnknown_var& product);

}  // namespace zrk::svn
