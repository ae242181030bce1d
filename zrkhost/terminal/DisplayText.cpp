#include "terminal/DisplayText.h"

#include <algorithm>
#include <array>

#include "base/Encoding.h"
#include "base/Hexadecimal.h"
#include "terminal/CharacterWidth.h"

namespace zrkhost {

namespace {

// Where CharactersFromUtf8 puts a byte that is no part of a character.
constexpr char32_t kBytes = 0xDC00;

bool IsByte(char32_t character) {
  return character >= kBytes && character <= kBytes + 0xFF;
}

struct Range {
  char32_t First;
  char32_t Last;
};

// Control characters, and those that end a line or turn the direction of writing.
bool IsUnsafe(char32_t character) {
  constexpr std::array<Range, 6> kUnsafe = {
      {{0x00, 0x1F}, {0x7F, 0x9F}, {0x061C, 0x061C}, {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}}};
  return std::any_of(kUnsafe.begin(), kUnsafe.end(), [character](const Range& range) {
    return character >= range.First && character <= range.Last;
  });
}

std::string Escape(char32_t character) {
  if (IsByte(character)) return "\\x" + Hexadecimal(character - kBytes, 2);
  switch (character) {
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      return character < 0x80 ? "\\x" + Hexadecimal(character, 2) : "\\u" + Hexadecimal(character, 4);
  }
}

}  // namespace

std::string DisplayText(std::string_view text, LineBreaks lineBreaks) {
  const auto characters = CharactersFromUtf8(text);
  const bool keep = lineBreaks == LineBreaks::Keep;
  std::u32string shown;
  shown.reserve(characters.size());
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const char32_t character = characters[i];
    if (keep && character == '\r' && i + 1 < characters.size() && characters[i + 1] == '\n') {
      // The line feed follows.
    } else if (IsByte(character) || (IsUnsafe(character) && !(keep && character == '\n'))) {
      const auto escape = Escape(character);
      shown.append(escape.begin(), escape.end());
    } else {
      shown += character;
    }
  }
  return Utf8FromCharacters(shown);
}

std::string OneLine(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  std::string result;
  bool ruled = false;
  while (!text.empty()) {
    auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    line.remove_prefix(std::min(line.size(), line.find_first_not_of(kBlanks)));
    line = line.substr(0, line.find_last_not_of(kBlanks) + 1);
    if (line.find_first_not_of('-') == std::string_view::npos) {
      ruled = ruled || !line.empty();
      continue;
    }
    if (!result.empty()) result += ruled ? " - " : " ";
    result += DisplayText(line);
    ruled = false;
  }
  return result;
}

int DisplayWidth(std::string_view text) {
  return CharacterWidth(CharactersFromUtf8(text));
}

std::string CutToWidth(std::string_view text, int width) {
  const auto characters = CharactersFromUtf8(text);
  if (CharacterWidth(characters) <= width) return std::string(text);
  if (width <= 0) return {};
  int used = 0;
  std::size_t end = 0;
  for (; end < characters.size(); ++end) {
    used += CharacterWidth({&characters[end], 1});
    // One column is the ellipsis's.
    if (used > width - 1) break;
  }
  return Utf8FromCharacters({characters.data(), end}) + "\u2026";
}

}  // namespace zrkhost
