#include "text/Path.h"

#include <windows.h>

#include <algorithm>

namespace zrk::text {
namespace {

// Where the character behind the one at `position` starts.
std::size_t Next(std::string_view text, std::size_t position) {
  const std::size_t length = IsDBCSLeadByte(static_cast<BYTE>(text[position])) ? 2 : 1;
  return std::min(position + length, text.size());
}

std::size_t LastSeparator(std::string_view path) {
  std::size_t last = std::string_view::npos;
  for (std::size_t position = 0; position < path.size(); position = Next(path, position)) {
    if (path[position] == '\\') last = position;
  }
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
  for (std::size_t position = 0;; position = Next(path, position)) {
    if (path.substr(position).starts_with(text)) return position;
    if (position == path.size()) return std::string_view::npos;
  }
}

}  // namespace zrk::text
