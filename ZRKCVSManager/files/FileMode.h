#pragma once

#include <string>

// What stands at a path, by its mode. Paths are the host's, separated by "\".
namespace zrk::files {

// Whether there is a folder of that path, which must not end in "\".
bool IsFolder(const std::string& path);

// Whether the file's mode lets its owner write; false when there is no such file.
bool IsWritable(const char* path);

}  // namespace zrk::files
