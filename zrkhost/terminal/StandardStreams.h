#pragma once

#include <filesystem>

namespace zrkhost {

// Whether standard input comes from this file, or standard output goes into it, whatever its name. False for
// a terminal, a pipe or a device.
bool IsStandardInput(const std::filesystem::path& file);
bool IsStandardOutput(const std::filesystem::path& file);

}  // namespace zrkhost
