#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Between paths as the host writes them, separated by "\" in the platform's 8-bit encoding, and paths of
// the file system. On Linux the host's \home\u\a.CATPart is the file /home/u/a.CATPart.
namespace standin {

std::string HostPath(const std::filesystem::path& path);
std::filesystem::path FilePath(std::string_view hostPath);

}  // namespace standin
