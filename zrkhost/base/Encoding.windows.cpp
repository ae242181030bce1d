#include "base/Encoding.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "text/NativeText.h"

namespace zrkhost {

std::string Utf8FromWide(std::wstring_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, result.data(), length, nullptr, nullptr);
  return result;
}

std::u32string CharactersFromUtf8(std::string_view text) {
  std::u32string characters;
  characters.reserve(text.size());
  while (!text.empty()) {
    // One character at a time, for the system does not say which of many bytes are none.
    std::array<wchar_t, 2> wide{};
    const int most = static_cast<int>(std::min<std::size_t>(text.size(), 4));
    int size = 0;
    int length = 0;
    while (length == 0 && size < most) {
      length = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), ++size, wide.data(), 2);
    }
    if (length == 0) {
      size = 1;
      characters += 0xDC00U + static_cast<unsigned char>(text[0]);
    } else if (length == 1) {
      characters += wide[0];
    } else {
      characters += 0x10000U + ((wide[0] - 0xD800U) << 10) + (wide[1] - 0xDC00U);
    }
    text.remove_prefix(static_cast<std::size_t>(size));
  }
  return characters;
}

std::string Utf8FromCharacters(std::u32string_view characters) {
  std::wstring wide;
  wide.reserve(characters.size());
  for (const char32_t character : characters) {
    if (character < 0x10000) {
      wide += static_cast<wchar_t>(character);
    } else {
      wide += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
      wide += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
  }
  return Utf8FromWide(wide);
}

std::filesystem::path PathFromNative(const std::string& text) {
  return standin::WideFromNative(text);
}

}  // namespace zrkhost
