#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "CATUnicodeString.h"
#include "ZRKCVSStatus.h"

// Reading the report of `svn status -v -u --xml` of a client that keeps a database (1.7 and later):
//
//   <?xml version="1.0" encoding="UTF-8"?>
//   <status>
//   <target path=".">
//   <entry path="sub/wheel left.CATPart">
//   <wc-status item="normal" revision="12" props="none">
//   <commit revision="9"><author>anna</author><date>2026-11-20T10:16:00.000000Z</date></commit>
//   <lock>                                                      the lock of this working copy
//   <token>opaquelocktoken:b1c2...</token><owner>anna</owner><comment>new tread</comment>
//   <created>2026-11-21T07:40:02.000000Z</created>
//   </lock>
//   </wc-status>
//   <repos-status item="none" props="none"><lock>...</lock></repos-status>     that of the repository, with
//   -u
//   </entry>
//   <against revision="12"/>
//   </target>
//   </status>
//
// Entries stand in no order; those of a changelist stand under `<changelist>` beside the target. A file that
// was never committed has no `<commit>`. The client's warnings stand around or, on their way through the same
// pipe, within it.
namespace zrk::svn {

// What the report says of one file or folder.
struct ReportedFile {
  // The working copy's word: "normal", "added", "unversioned"...
  std::string Item;
  // The last revision that was committed; empty when there is none.
  std::string Revision;
  bool IsLockedHere = false;
  bool IsLockedByOther = false;
  // Of the lock that counts; empty without one.
  CATUnicodeString LockOwner;
  CATUnicodeString LockComment;

  // Whether the working copy holds it: not so what is unversioned, ignored, external or only in the
  // repository.
  bool IsVersioned() const;
};

// By path, separated by "\". The first entry of a path holds.
using ReportedFiles = std::unordered_map<std::string, ReportedFile>;

// Whether the client was asked for the locks that the repository holds (-u).
enum class Repository { Asked, NotAsked };

// Adds the entries of a report to `files`, with `folder` in front of their paths. A lock of the working copy
// that the repository was asked about and does not hold is none any more; one of another token is somebody
// else's. Entries without a path or a `<wc-status>` are left out, and so are entries within entries, which
// the client does not write. False, with nothing added, when what stands from "<?xml" to the last "</status>"
// is not well-formed: the client was interrupted, or could not reach the repository.
bool ReadWorkingCopyReport(const CATUnicodeString& report, Repository repository, std::string_view folder,
                           ReportedFiles& files);

// Puts what is known of a versioned file into the record: WorkingRevision and RevisionNumber (0 without one),
// IsVersioned, IsInEntries, the lock's flags, LockOwner and, with the lock's comment, AuxText.
void FillRecord(const ReportedFile& file, ZRKCVSStatus& record);

}  // namespace zrk::svn
