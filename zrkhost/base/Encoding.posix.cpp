#include "base/Encoding.h"

#include "text/NativeText.h"

// The native encoding is UTF-8 and a wide character holds any character, so the host's own way between the
// two is all that is needed.
namespace zrkhost {

namespace {

bool IsHighSurrogate(wchar_t character) {
  return character >= 0xD800 && character < 0xDC00;
}
bool IsLowSurrogate(wchar_t character) {
  return character >= 0xDC00 && character < 0xE000;
}

}  // namespace

std::string Utf8FromWide(std::wstring_view text) {
  std::wstring characters;
  characters.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      // Two that came from a text with 16 bits for each.
      characters += static_cast<wchar_t>(0x10000 + ((text[i] - 0xD800) << 10) + (text[i + 1] - 0xDC00));
      ++i;
    } else {
      characters += IsHighSurrogate(text[i]) || IsLowSurrogate(text[i])
                        ? static_cast<wchar_t>(kReplacementCharacter)
                        : text[i];
    }
  }
  return standin::NativeFromWide(characters);
}

std::u32string CharactersFromUtf8(std::string_view text) {
  const std::wstring wide = standin::WideFromNative(text);
  return {wide.begin(), wide.end()};
}

std::string Utf8FromCharacters(std::u32string_view characters) {
  return standin::NativeFromWide(std::wstring(characters.begin(), characters.end()));
}

std::filesystem::path PathFromNative(const std::string& text) {
  return text;
}

}  // namespace zrkhost
