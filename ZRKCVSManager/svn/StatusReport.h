#pragma once

#include <optional>

#include "CATUnicodeString.h"

// Reading the reports of `svn status -v -u`, as text and with --xml.
namespace zrk::svn {

// Whether somebody else holds a lock: the text report holds " O " anywhere. For a file locked elsewhere
// the client writes
//
//        O           12        9 anna         C:\w\car\wheel left.CATPart
bool ShowsForeignLock(const CATUnicodeString& report);

// The text of the first "owner" element of the XML report; nothing when there is none or the report is
// not well-formed.
std::optional<CATUnicodeString> FirstLockOwner(const CATUnicodeString& xmlReport);

}  // namespace zrk::svn
