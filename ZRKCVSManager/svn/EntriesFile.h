#pragma once

#include <windows.h>

#include "ZRKCVSStatus.h"

namespace zrk::svn {

// Reads the entry of the file of that full path (see ReadEntry) from `.svn\entries` in its folder, which is
// read anew on each call. Folder and name are what stands before and behind the last "\"; without one both
// are the whole path. E_FAIL when the entries file cannot be opened, else 0.
HRESULT ReadSVNEntry(const char* path, ZRKCVSStatus& record);

}  // namespace zrk::svn
