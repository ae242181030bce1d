#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// The files that the CVS client keeps beside the documents of a working copy, made without a client.

// Line of CVS/Entries for an unmodified binary file.
std::string CVSEntryLine(std::string_view name, std::string_view revision);

// Writes CVS/Root, CVS/Repository and CVS/Entries below `folder`; each line ends in a line feed. `root` is
// such as "/cvs/root", `repository` the folder's path below it, such as "proj/sub".
void WriteCVSFolder(const std::filesystem::path& folder, std::string_view root, std::string_view repository,
                    const std::vector<std::string>& entryLines = {});
