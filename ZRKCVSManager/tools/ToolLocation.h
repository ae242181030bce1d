#pragma once

#include <cstdint>

#include "CATUnicodeString.h"

// Where the clients are.
namespace zrk::tools {

// Full paths of cvs.exe and svn.exe, looked for along the environment variable PATH; empty when they are
// not there.
void LocateTools(CATUnicodeString& cvsExePath, CATUnicodeString& svnExePath);

// 1 when the path of cvs.exe is known. Else 0, after a blocking warning that says so; the warning needs
// the application's main window and is left out without one.
std::int32_t CheckCVSToolPath(const CATUnicodeString& cvsExePath);

}  // namespace zrk::tools
