#pragma once

#include <windows.h>

// The creation flags of this program's last call of CreateProcessW. Windows only.
DWORD LastCreationFlags();
