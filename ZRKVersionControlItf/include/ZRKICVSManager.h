#pragma once

#include <windows.h>

#include "CATMetaClass.h"
#include "CATUnicodeString.h"

class ZRKCVSStatus;

// Version control of a product's document and of the tree below the product. Implemented by the
// version-control component for every product; every call runs on the caller's thread and returns when
// the client program has ended.
//
// Results are 0 for success and 0x80004005 for an operation that was refused or could not start, unless
// an operation says otherwise.
class ZRKICVSManager : public CATBaseUnknown {
  CATDeclareInterface

  // Asks the client about every document of the tree below `root` and writes "Revision", "Status",
  // "Release" and "Comment" onto the products. In a Subversion working copy the tree is that of the
  // manager's own product, whatever `root` is.
  virtual void RefreshStatus(CATBaseUnknown_var root) = 0;

  // Writes the time spent waiting for the CVS client, in milliseconds, to standard output and starts
  // counting anew. Always 0.
  virtual HRESULT PrintCommTime() = 0;

  // Takes the document of the manager's product for editing. 1: the client answered with a message,
  // which the user has seen.
  virtual HRESULT Edit() = 0;

  // Gives the document of the manager's product back. 1: the user declined to lose the changes.
  virtual HRESULT Unedit() = 0;

  // Fills `status` with what the CVS client says about the document of a reference product. Always 0: a
  // record that is left as it was tells that nothing is known.
  virtual HRESULT GetFileStatus(CATBaseUnknown_var product, ZRKCVSStatus& status) = 0;

  // Removes the file of that full path from CVS. What the client answers is not looked at.
  virtual HRESULT CVSRemove(const CATUnicodeString& file) = 0;

  // Schedules the file of that full path for deletion from Subversion. What the client answers is not
  // looked at.
  virtual HRESULT SVNDelete(const CATUnicodeString& file) = 0;
};

using ZRKICVSManager_var = CATHandle<ZRKICVSManager>;
