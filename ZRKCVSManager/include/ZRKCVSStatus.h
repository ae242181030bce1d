#pragma once

#include <cstdint>
#include <string>

#include "CATUnicodeString.h"
#include "ZRKCVSManagerExport.h"

class CATBaseUnknown;

// The version-control state of one file, as the clients' reports and the working copy's own files give
// it. A new record knows nothing: every text is empty, every flag 0. Copying may throw std::bad_alloc.
//
// The fields from File to ExistingTags come from the report of `cvs status -v`, each from the line with
// its label. Those that Subversion fills come from `.svn\entries` and from `svn status -v -u` or, where the
// working copy has a database, from `svn status -v -u --xml` alone. ZRKICVSManager::GetFileStatus gives out
// the CVS fields; in a working copy with a database File, Status and those of Subversion.
class ZRKCVSMANAGER_EXPORT ZRKCVSStatus {
public:
  ZRKCVSStatus();
  ZRKCVSStatus(const ZRKCVSStatus& other);
  ZRKCVSStatus& operator=(const ZRKCVSStatus& other);
  ~ZRKCVSStatus();

  // File name from the "File:" line without its blanks; the tab before "Status:" stays at its end. With a
  // Subversion database: the document's file name.
  CATUnicodeString File;
  // Status words from the "File:" line, up to and with the carriage return that ends it. With a Subversion
  // database: the report's word for the file, such as "normal".
  CATUnicodeString Status;
  // CVS: "Working revision:", without blanks and tabs. Subversion: the last committed revision from the
  // entries file or the XML report.
  CATUnicodeString WorkingRevision;
  // Of this and the following fields tabs are removed: here revision and repository file stand together.
  CATUnicodeString RepositoryRevision;
  CATUnicodeString ExpansionOption;
  CATUnicodeString CommitIdentifier;
  CATUnicodeString StickyTag;
  CATUnicodeString StickyDate;
  CATUnicodeString StickyOptions;
  CATUnicodeString MergeFrom;
  // First line after "Existing Tags:", appended to what stood here.
  CATUnicodeString ExistingTags;
  // Free comment; it ends the "Comment" attribute. The comment of the lock, with a Subversion database; else
  // empty unless a back end sets it.
  CATUnicodeString AuxText;
  // Owner of the Subversion lock: from the XML report, or from the entries file when that holds the lock
  // and no XML report was asked for or it names no owner.
  CATUnicodeString LockOwner;

  // The Subversion entries file, or the XML report of a database, lists the file as versioned.
  unsigned char IsVersioned;
  // Carried and copied, not used.
  unsigned char Flag2;
  // Set together with IsVersioned.
  unsigned char IsInEntries;
  // This working copy has the lock: the entries file holds its token, or the XML report of a database shows
  // it, and not that it was broken or stolen.
  unsigned char IsLockedHere;
  // The Subversion status report, of either form, shows a lock held elsewhere.
  unsigned char IsLockedByOther;

  // Carried and copied, not used.
  std::string Text1;
  std::string Text2;
  std::string Text3;

  // WorkingRevision of Subversion as far as it is a decimal number: 12 of "12M", 0 of "M".
  std::int32_t RevisionNumber;
};

extern "C" {

// 1 when the object is a product whose reference has a document, so that it can be put under version
// control; else 0, also for null. Whether the document lies in a working copy is not asked.
ZRKCVSMANAGER_EXPORT int IsCVSable(CATBaseUnknown* object);

// 1 when the attribute package "ZRKCVS" answers that the object may be modified; else 0, also for null
// and when the attribute dictionary does not know the package.
ZRKCVSMANAGER_EXPORT int IsCVSModifiable(CATBaseUnknown* object);
}
