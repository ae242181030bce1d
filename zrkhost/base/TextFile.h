#pragma once

#include <filesystem>
#include <string>

namespace zrkhost {

// The bytes of a file. Throws CallError when it cannot be read.
std::string ReadTextFile(const std::filesystem::path& file);

}  // namespace zrkhost
