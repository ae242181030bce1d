#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

// The files that the clients keep beside a document, read as the C library's text mode gives them: a
// carriage return before a line feed is left out, and Ctrl-Z ends the text. Paths are the host's,
// separated by "\". Modes are those of fopen: "rt" is always text, "r" unless the process has another
// default.
namespace zrk::files {

// Whether the file can be opened for reading.
bool CanOpen(const std::string& path);

// Whether the text goes on behind its first line; false when the file cannot be opened.
bool HoldsSeveralLines(const std::string& path);

// A text in memory that was not cleared before, as a std::string's would be: the entries of a large folder
// are read anew for each of its documents.
struct Text {
  std::unique_ptr<char[]> Characters;
  std::size_t Size = 0;

  std::string_view View() const { return {Characters.get(), Size}; }
};

// The whole text, or what comes before a read error; nothing when the file cannot be opened.
std::optional<Text> ReadText(const std::string& path, const char* mode = "rt");

}  // namespace zrk::files
