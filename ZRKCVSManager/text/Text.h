#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "CATUnicodeString.h"

namespace zrk::text {

// The 8-bit text of the host's; good until that changes. Empty for one longer than the host can count.
inline std::string_view View(const CATUnicodeString& text) {
  return {text.ConvertToChar(), static_cast<std::size_t>(std::max(text.GetLengthInByte(), 0))};
}

// `length` characters from `start`. Nothing when `start` lies past the end; all that follows when the
// length is negative or reaches past the end.
inline std::string_view Piece(std::string_view text, std::size_t start, std::ptrdiff_t length) {
  if (start >= text.size()) return {};
  return text.substr(start, static_cast<std::size_t>(length));
}

// The next piece between "\n" characters, empty ones skipped, cut off from the front of `rest`; empty
// when there is none left.
inline std::string_view NextLine(std::string_view& rest) {
  const std::size_t start = std::min(rest.find_first_not_of('\n'), rest.size());
  const std::size_t end = std::min(rest.find('\n', start), rest.size());
  const std::string_view line = rest.substr(start, end - start);
  rest.remove_prefix(end);
  return line;
}

inline std::string Replaced(std::string_view text, char searched, char replacement) {
  std::string result(text);
  std::replace(result.begin(), result.end(), searched, replacement);
  return result;
}

}  // namespace zrk::text
