#pragma once

#include <windows.h>

#include "CATMetaClass.h"
#include "CATUnicodeString.h"

class ZRKCVSStatus;

// Version control of a product's document and of the tree below the product. Implemented by the
// version-control component for every product.
//
// Every call runs on the caller's thread. The clients cvs.exe and svn.exe, looked for along PATH when the
// product is first asked for this interface, run as hidden child processes; a call returns when they have
// ended their output. Which of the two a call uses, and the folder that it runs in, follow from the working
// copy in which the document of the manager's product lies; without one there, the last working copy found
// among the documents below it counts.
//
// Results are 0 (S_OK) and 0x80004005 (E_FAIL). What the client thought of a command they do not tell, unless
// an operation says so: the "Status" attribute does, once it is refreshed. A client that cannot be started is
// told on the debugger channel alone. That cvs.exe is missing is shown to the user where the host has a main
// window.
class ZRKICVSManager : public CATBaseUnknown {
  CATDeclareInterface

  // Asks the client about every document of the tree below `root`, writes "Revision", "Status", "Release" and
  // "Comment" onto the products and has them redrawn. Below a product without a document the walk does not
  // go. Three messages on the debugger channel tell where the time went.
  //
  //   CVS         `cvs status -v` and `cvs -n edit` over all documents, in as few runs as command lines
  //               allow; without any CVS document in the tree, over all of the working copy. The products are
  //               put into work mode 1. A document that the client does not report keeps its attributes and
  //               is told on standard output as not found; one whose status is just "Unknown" loses them, as
  //               does a product whose reference is not loaded or cannot have a document. Without a working
  //               copy, a root or the attribute package "ZRKCVS" nothing happens and nothing is told; without
  //               cvs.exe the user is told
  //   Subversion  the tree is that of the manager's own product, whatever `root` is. `.svn\entries`,
  //               `svn status -v -u` and the same with `--xml`, one document at a time. A document that the
  //               entries file does not list loses its attributes, as does a product that cannot have one
  virtual void RefreshStatus(CATBaseUnknown_var root) = 0;

  // Writes " Total CVS Comm Time: ", the milliseconds spent waiting for cvs.exe and a line end to standard
  // output and starts counting anew. Counted are GetFileStatus and the question that Edit ends with; a
  // refresh, also that of Unedit, replaces the count by the time of its `-n edit` runs. Always 0.
  virtual HRESULT PrintCommTime() = 0;

  // Takes the document of the manager's product for editing.
  //
  //   CVS         `cvs -n -q update`; when that announces a newer version, a warning and E_FAIL. Then
  //               `cvs -q -x edit -z -c`. 0: "Status" is "Edit". 1: the client answered anything, which a
  //               warning shows where there is a main window, or "Status" could not be reached. E_FAIL too
  //               without cvs.exe (the user is told), a working copy or a document, and, after the client
  //               ran, when the attributes could not be put onto the product
  //   Subversion  `svn update`, `svn lock` and a refresh of the product. 0 also when the lock was not given:
  //               "Status" tells. E_FAIL without a document
  virtual HRESULT Edit() = 0;

  // Gives the document of the manager's product back.
  //
  //   CVS         refreshes the product and goes on only if its "Status" is "Edit", else E_FAIL; then
  //               `cvs -q -x unedit`. What the client answers, as its question whether to lose the changes,
  //               is put to the user as a question of yes or no, where there is a main window; 1 when the
  //               user said no. Then the product is refreshed again. E_FAIL too without cvs.exe (the user is
  //               told), a working copy or a document
  //   Subversion  `svn unlock` and a refresh of the product. 0 also when that failed: "Status" tells. E_FAIL
  //               without a document
  virtual HRESULT Unedit() = 0;

  // Fills `status` with what `cvs status -v` says about the document of a reference product. Always 0: fields
  // that are left as they were tell that nothing is known, as for an instance, without a document, without
  // cvs.exe (which is not told here) and, mostly, in a Subversion working copy. The first tag is appended to
  // ExistingTags, so that a record is good for one call.
  virtual HRESULT GetFileStatus(CATBaseUnknown_var product, ZRKCVSStatus& status) = 0;

  // Removes the file of that full path from disk and, with the next commit, from CVS: `cvs remove -f` in the
  // file's folder. E_FAIL, with nothing run, in a Subversion working copy and without cvs.exe (the user is
  // told). What the client answers is not looked at, and no attribute changes.
  virtual HRESULT CVSRemove(const CATUnicodeString& file) = 0;

  // Removes the file of that full path, with changes or not, and schedules it for deletion from Subversion:
  // `svn delete -m"zq" --force`. The client must put up with a message for a local deletion. E_FAIL, with
  // nothing run, outside a Subversion working copy. What the client answers is not looked at, and no
  // attribute changes.
  virtual HRESULT SVNDelete(const CATUnicodeString& file) = 0;
};

using ZRKICVSManager_var = CATHandle<ZRKICVSManager>;
