#pragma once

#include <string>
#include <string_view>

// Text on one line of a script or a log: \n \r \t \0 \\ and \xHH for any byte.

inline std::string Escape(std::string_view text) {
  constexpr char digits[] = "0123456789ABCDEF";
  std::string escaped;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte > ' ' && byte != '\\' && byte != 0x7F) {
      escaped += character;
    } else {
      escaped += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
    }
  }
  return escaped;
}

inline std::string Unescape(std::string_view escaped) {
  const auto digit = [](char character) {
    if (character <= '9') return character - '0';
    return (character | 0x20) - 'a' + 10;
  };
  std::string text;
  for (std::size_t position = 0; position < escaped.size(); ++position) {
    if (escaped[position] != '\\' || position + 1 == escaped.size()) {
      text += escaped[position];
      continue;
    }
    switch (const char kind = escaped[++position]) {
      case 'n':
        text += '\n';
        break;
      case 'r':
        text += '\r';
        break;
      case 't':
        text += '\t';
        break;
      case '0':
        text += '\0';
        break;
      case 'x':
        if (position + 2 < escaped.size()) {
          text += static_cast<char>(digit(escaped[position + 1]) * 16 + digit(escaped[position + 2]));
          position += 2;
        }
        break;
      default:
        text += kind;
    }
  }
  return text;
}
