#include "base/Hexadecimal.h"

#include <array>
#include <charconv>

namespace zrkhost {

std::string Hexadecimal(std::uint32_t value, std::size_t digits) {
  std::array<char, 8> buffer{};
  const auto end = std::to_chars(buffer.begin(), buffer.end(), value, 16).ptr;
  const std::string text(buffer.begin(), end);
  return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

}  // namespace zrkhost
