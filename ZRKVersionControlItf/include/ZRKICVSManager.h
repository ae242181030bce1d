#pragma once

#include <windows.h>

#include "CATMetaClass.h"
#include "CATUnicodeString.h"

class ZRKCVSStatus;

// Version control of a product's document and of the tree below the product. Implemented by the
// version-control component for every product.
//
//   if (const ZRKICVSManager_var manager{product}) {
//     manager->RefreshStatus(product);             // "Status" and the other attributes of the whole tree
//     if (manager->Edit() == S_OK) Change(product);  // takes the product's document for editing
//     manager->Unedit();                           // gives it back
//   }
//
// Every call runs on the caller's thread and returns when the clients it ran have ended their output. The
// clients are cvs.exe and svn.exe. They are looked for along PATH when the product is first asked for this
// interface, and run as hidden child processes. Which of the two runs follows from the working copy that
// holds the document of the manager's product. Without one there, the last working copy found among the
// documents below counts.
//
// Results are 0 (S_OK) and 0x80004005 (E_FAIL). They say whether a command was run, not what the client
// thought of it, unless an operation says otherwise. The "Status" attribute shows that once it is refreshed.
// A client that cannot be started is reported on the debugger channel alone. When cvs.exe is missing the user
// sees a warning, if the host has a main window.
class ZRKICVSManager : public CATBaseUnknown {
  CATDeclareInterface

  // Asks the client about every document of the tree below `root`, writes "Revision", "Status", "Release" and
  // "Comment" onto the products and has them redrawn. The walk does not go below a product without a
  // document. Three messages on the debugger channel show where the time went.
  //
  //   CVS         `cvs status -v` and `cvs -n edit` over all documents, in as few runs as command lines
  //               allow. Without any CVS document in the tree, over all of the working copy. The products are
  //               put into work mode 1. A document that the client does not report keeps its attributes and
  //               is named on standard output as not found. One whose status is just "Unknown" loses them, as
  //               does a product whose reference is not loaded or cannot have a document. Without a working
  //               copy, a root or the attribute package "ZRKCVS" nothing happens. Without cvs.exe the user
  //               sees a warning
  //   Subversion  the tree is that of the manager's own product, whatever `root` is. A working copy with a
  //               database (1.7 and later): `svn status -v -u --xml` once for all its documents. One with
  //               text entries: `.svn\entries`, `svn status -v -u` and the same with `--xml`, one document at
  //               a time. A document that is not under version control loses its attributes, as does a
  //               product that cannot have one
  virtual void RefreshStatus(CATBaseUnknown_var root) = 0;

  // Writes " Total CVS Comm Time: ", the milliseconds spent waiting for the client and a line end to
  // standard output, and starts counting anew. GetFileStatus counts, and so does the question that Edit ends
  // with. A refresh, also that of Unedit, replaces the count by the time of its `-n edit` runs. Always 0.
  virtual HRESULT PrintCommTime() = 0;

  // Takes the document of the manager's product for editing.
  //
  //   CVS         `cvs -n -q update`. When that announces a newer version: a warning and E_FAIL. Then
  //               `cvs -q -x edit -z -c`. 0: "Status" is "Edit". 1: the client answered anything, which a
  //               warning shows where there is a main window, or "Status" could not be reached. E_FAIL too
  //               without cvs.exe (the user sees a warning), a working copy or a document, and, after the
  //               client ran, when the attributes could not be put onto the product
  //   Subversion  `svn update`, `svn lock` and a refresh of the product. 0 also when the lock was not given:
  //               "Status" shows it. E_FAIL without a document
  virtual HRESULT Edit() = 0;

  // Gives the document of the manager's product back.
  //
  //   CVS         refreshes the product and goes on only if its "Status" is "Edit", else E_FAIL. Then
  //               `cvs -q -x unedit`. What the client answers, such as its question whether to lose the
  //               changes, is put to the user as a question of yes or no, where there is a main window. 1
  //               when the user said no. Then the product is refreshed again. E_FAIL too without cvs.exe (the
  //               user sees a warning), a working copy or a document
  //   Subversion  `svn unlock` and a refresh of the product. 0 also when that failed: "Status" shows it.
  //               E_FAIL without a document
  virtual HRESULT Unedit() = 0;

  // Fills `status` with what the client says about the document of a reference product: `cvs status -v`, or
  // `svn status -v -u --xml` in a Subversion working copy with a database. Always 0. Fields of which nothing
  // is known stay as they were: for an instance, without a document, without cvs.exe (without a warning here)
  // and, mostly, in a Subversion working copy with text entries. The first tag is appended to ExistingTags,
  // so that a record is good for one call.
  virtual HRESULT GetFileStatus(CATBaseUnknown_var product, ZRKCVSStatus& status) = 0;

  // Removes the file of that full path from disk and, with the next commit, from CVS: `cvs remove -f` in the
  // file's folder. E_FAIL, with nothing run, in a Subversion working copy and without cvs.exe (the user sees
  // a warning). What the client answers is not looked at, and no attribute changes.
  virtual HRESULT CVSRemove(const CATUnicodeString& file) = 0;

  // Removes the file of that full path, with changes or not, and schedules it for deletion from Subversion:
  // `svn delete --force`; with text entries also `-m"zq"`, which the client must put up with. E_FAIL, with
  // nothing run, outside a Subversion working copy. What the client answers is not looked at, and no
  // attribute changes.
  virtual HRESULT SVNDelete(const CATUnicodeString& file) = 0;
};

using ZRKICVSManager_var = CATHandle<ZRKICVSManager>;
