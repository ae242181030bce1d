#pragma once

#include <optional>
#include <string>

// The files that the clients keep beside a document, read as the C library's text mode gives them: a
// carriage return before a line feed is left out, and Ctrl-Z ends the text. Paths are the host's,
// separated by "\".
namespace zrk::files {

// Whether the file can be opened for reading.
bool CanOpen(const std::string& path);

// The whole text; nothing when the file cannot be opened.
std::optional<std::string> ReadText(const std::string& path);

// Whether the file's mode lets its owner write; false when there is no such file.
bool IsWritable(const char* path);

}  // namespace zrk::files
