#include "terminal/DisplayText.h"

#include <algorithm>
#include <array>

#include "base/Encoding.h"
#include "base/Hexadecimal.h"

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

template <std::size_t count>
bool IsIn(const std::array<Range, count>& ranges, char32_t character) {
  const auto range = std::lower_bound(ranges.begin(), ranges.end(), character,
                                      [](const Range& entry, char32_t value) { return entry.Last < value; });
  return range != ranges.end() && character >= range->First;
}

// Control characters, and those that end a line or turn the direction of writing.
constexpr std::array<Range, 6> kUnsafe = {
    {{0x00, 0x1F}, {0x7F, 0x9F}, {0x061C, 0x061C}, {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}}};

// Marks that stand on the character before them, and characters without any shape.
constexpr std::array<Range, 16> kNoColumn = {{{0x0300, 0x036F},
                                              {0x0483, 0x0489},
                                              {0x0591, 0x05BD},
                                              {0x0610, 0x061A},
                                              {0x064B, 0x065F},
                                              {0x0E31, 0x0E31},
                                              {0x0E34, 0x0E3A},
                                              {0x0E47, 0x0E4E},
                                              {0x1AB0, 0x1AFF},
                                              {0x1DC0, 0x1DFF},
                                              {0x200B, 0x200D},
                                              {0x20D0, 0x20FF},
                                              {0xFE00, 0xFE0F},
                                              {0xFE20, 0xFE2F},
                                              {0xFEFF, 0xFEFF},
                                              {0xE0100, 0xE01EF}}};

// East Asian characters and pictures of full width.
constexpr std::array<Range, 14> kTwoColumns = {{{0x1100, 0x115F},
                                                {0x2E80, 0x303E},
                                                {0x3041, 0x33FF},
                                                {0x3400, 0x4DBF},
                                                {0x4E00, 0xA4CF},
                                                {0xA960, 0xA97F},
                                                {0xAC00, 0xD7A3},
                                                {0xF900, 0xFAFF},
                                                {0xFE30, 0xFE6F},
                                                {0xFF00, 0xFF60},
                                                {0xFFE0, 0xFFE6},
                                                {0x1F300, 0x1F64F},
                                                {0x1F900, 0x1F9FF},
                                                {0x20000, 0x3FFFD}}};

int Columns(char32_t character) {
  if (IsIn(kNoColumn, character)) return 0;
  return IsIn(kTwoColumns, character) ? 2 : 1;
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
    } else if (IsByte(character) || (IsIn(kUnsafe, character) && !(keep && character == '\n'))) {
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
  int width = 0;
  for (const char32_t character : CharactersFromUtf8(text)) width += Columns(character);
  return width;
}

std::string CutToWidth(std::string_view text, int width) {
  if (DisplayWidth(text) <= width) return std::string(text);
  if (width <= 0) return {};
  const auto characters = CharactersFromUtf8(text);
  int used = 0;
  std::size_t end = 0;
  // One column is the ellipsis's.
  while (end < characters.size() && used + Columns(characters[end]) <= width - 1) {
    used += Columns(characters[end++]);
  }
  return Utf8FromCharacters({characters.data(), end}) + "\u2026";
}

}  // namespace zrkhost
