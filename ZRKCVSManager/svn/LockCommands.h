#pragma once

#include <windows.h>

#include "svn/SVNContext.h"

// The Subversion commands that change a working copy. What the client answers is not looked at; the
// status read afterwards shows what came of a command. In a working copy of the text form the client runs in
// the manager's working folder; in one with a database in the file's own folder, and it never asks anybody.
namespace zrk::svn {

// Updates and then locks the product's document, and refreshes the product's attributes. E_FAIL, with
// nothing run, when the product has no document.
HRESULT SVNLock(const SVNContext& context, const CATBaseUnknown_var& product);

// Unlocks the product's document and refreshes the product's attributes. E_FAIL as for SVNLock.
HRESULT SVNUnlock(const SVNContext& context, const CATBaseUnknown_var& product);

// Schedules the file of that full path for deletion. E_FAIL, with nothing run, in a working copy that is
// not Subversion's.
HRESULT SVNDelete(const SVNContext& context, const CATUnicodeString& path);

}  // namespace zrk::svn
