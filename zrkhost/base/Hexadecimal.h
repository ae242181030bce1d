#pragma once

#include <cstdint>
#include <string>

namespace zrkhost {

// With at least so many digits, in lower case and without a prefix.
std::string Hexadecimal(std::uint32_t value, std::size_t digits = 1);

}  // namespace zrkhost
