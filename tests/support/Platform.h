#pragma once

#include <filesystem>

// What these tools themselves need of the system.

// Folder of the running program; what was built with the tests lies beside or below it.
std::filesystem::path ExecutableFolder();

// What separates the folders in PATH.
extern const char pathListSeparator;
