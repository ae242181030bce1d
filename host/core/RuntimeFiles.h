#pragma once

#include <filesystem>

// What the platform takes for a list of folders and for a file that can be run.
namespace standin {

// Stands between the folders of an environment variable.
extern const char kFolderListSeparator;

bool IsRunnableFile(const std::filesystem::path& path);

}  // namespace standin
