#pragma once

#include <filesystem>
#include <map>
#include <string>

// What a working copy holds, by path below it: of each folder, link and file its kind and mode, and of the
// latter two what is in them. The client's own database, which the client itself writes, is left out.
std::map<std::string, std::string> ContentsOf(const std::filesystem::path& workingCopy);
