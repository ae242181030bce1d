#pragma once

#include <string_view>

#include "ZRKCVSStatus.h"

// Reading the text form of a working copy's `.svn\entries` (formats 8 to 10). Line 1 is the format; then
// every entry is a run of lines that starts with its name and ends with a line holding one form feed:
//
//   wheel left.CATPart             the name
//   file                           1
//                                  2   revision, empty when as the folder's
//   ...
//   1234                           9   last committed revision
//   ...
//   opaquelocktoken:b1c2...       26   lock token, when this working copy holds the lock
//   anna                          27   lock owner
//
// Empty lines at the end of an entry are left out, and the distances then run into the entries behind.
namespace zrk::svn {

// Looks for the first line that is exactly `name`, wherever it stands, and reads the lines at fixed
// distances behind it. Found: IsInEntries and IsVersioned are set; line 9 fills WorkingRevision and
// RevisionNumber; when line 26 holds "opaquelocktoken", IsLockedHere is set and line 27 fills LockOwner
// (empty when there is no such line). Lines that are missing leave their fields as they were, as does a
// name that is not found. A last line without line feed does not count.
void ReadEntry(std::string_view entries, std::string_view name, ZRKCVSStatus& record);

}  // namespace zrk::svn
