#include "text/Path.h"

#include <windows.h>

namespace zrk::text {
namespace {

// Whether a character of two bytes began one byte before. Of bytes in a row that may begin one, every second
// is the end of the one before it.
bool IsSecondByte(std::string_view text, std::size_t position) {
  std::size_t first = position;
  while (first > 0 && IsDBCSLeadByte(static_cast<BYTE>(text[first - 1]))) --first;
  return (position - first) % 2 == 1;
}

std::size_t LastSeparator(std::string_view path) {
  std::size_t last = path.rfind('\\');
  while (last != std::string_view::npos && IsSecondByte(path, last)) last = path.substr(0, last).rfind('\\');
  return last;
}

}  // namespace

std::string_view FolderOf(std::string_view path) {
  return path.substr(0, LastSeparator(path));
}

std::optional<std::string_view> FolderAbove(std::string_view folder) {
  const std::string_view above = FolderOf(folder);
  // Above a share stands the server alone, behind its two separators.
  if (above == folder || FolderOf(above) == "\\") return std::nullopt;
  return above;
}

std::string_view NameOf(std::string_view path) {
  const std::size_t separator = LastSeparator(path);
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

std::size_t Find(std::string_view path, std::string_view text) {
  std::size_t found = path.find(text);
  while (found != std::string_view::npos && IsSecondByte(path, found)) found = path.find(text, found + 1);
  return found;
}

}  // namespace zrk::text
