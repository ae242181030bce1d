#include "base/Encoding.h"

#include "text/NativeText.h"

namespace zrkhost {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char32_t character) {
  return character >= 0xD800 && character < 0xDC00;
}
bool IsLowSurrogate(char32_t character) {
  return character >= 0xDC00 && character < 0xE000;
}

void AppendUtf8(std::string& text, char32_t character) {
  const auto byte = [&text](char32_t value) { text += static_cast<char>(value); };
  if (character < 0x80) {
    byte(character);
  } else if (character < 0x800) {
    byte(0xC0 | (character >> 6));
    byte(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    byte(0xE0 | (character >> 12));
    byte(0x80 | ((character >> 6) & 0x3F));
    byte(0x80 | (character & 0x3F));
  } else {
    byte(0xF0 | (character >> 18));
    byte(0x80 | ((character >> 12) & 0x3F));
    byte(0x80 | ((character >> 6) & 0x3F));
    byte(0x80 | (character & 0x3F));
  }
}

}  // namespace

std::string Utf8FromWide(std::wstring_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto character = static_cast<char32_t>(text[i]);
    // Where wide characters have 16 bits, two of them make one character beyond the basic plane.
    if (IsHighSurrogate(character) && i + 1 < text.size() &&
        IsLowSurrogate(static_cast<char32_t>(text[i + 1]))) {
      character = 0x10000 + ((character - 0xD800) << 10) + (static_cast<char32_t>(text[++i]) - 0xDC00);
    } else if (IsHighSurrogate(character) || IsLowSurrogate(character) || character > 0x10FFFF) {
      character = kReplacement;
    }
    AppendUtf8(result, character);
  }
  return result;
}

std::string Utf8FromNative(std::string_view text) {
  return Utf8FromWide(standin::WideFromNative(text));
}

std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::string Utf8FromPath(const std::filesystem::path& path) {
  const auto text = path.generic_u8string();
  return {text.begin(), text.end()};
}

}  // namespace zrkhost
