#pragma once

#include <filesystem>

// What these tools themselves need of the system.

// Folder of the running program; what was built with the tests lies beside or below it.
std::filesystem::path ExecutableFolder();

// Whether the 8-bit text of the host's is UTF-8; else it is that of the active code page.
inline constexpr bool kTextIsUtf8 = std::filesystem::path::preferred_separator == '/';

// What separates the folders in PATH.
extern const char kPathListSeparator;
