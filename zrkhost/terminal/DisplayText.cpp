#include "terminal/DisplayText.h"

#include <algorithm>
#include <array>

#include "base/Hexadecimal.h"

namespace zrkhost {

namespace {

constexpr char32_t kInvalid = 0xFFFFFFFF;

// The first character of a text that is not empty, and how many bytes it takes; kInvalid and 1 when the bytes
// there are no character.
struct Decoded {
  char32_t Character = kInvalid;
  std::size_t Size = 1;
};

Decoded DecodeFirst(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  if (lead < 0x80) return {lead, 1};
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < size) return {};
  char32_t character = lead & (0xFFU >> (size + 1));
  for (std::size_t i = 1; i < size; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0) != 0x80) return {};
    character = (character << 6) | (next & 0x3F);
  }
  constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = character >= 0xD800 && character < 0xE000;
  if (character < kSmallest[size] || character > 0x10FFFF || surrogate) return {};
  return {character, size};
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
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const auto [character, size] = DecodeFirst(text);
    const bool keep = lineBreaks == LineBreaks::Keep;
    if (keep && text.starts_with("\r\n")) {
      // The line feed follows.
    } else if (keep && character == '\n') {
      result += '\n';
    } else if (character == kInvalid) {
      result += "\\x" + Hexadecimal(static_cast<unsigned char>(text[0]), 2);
    } else if (IsIn(kUnsafe, character)) {
      result += Escape(character);
    } else {
      result += text.substr(0, size);
    }
    text.remove_prefix(size);
  }
  return result;
}

int DisplayWidth(std::string_view text) {
  int width = 0;
  while (!text.empty()) {
    const auto [character, size] = DecodeFirst(text);
    width += Columns(character);
    text.remove_prefix(size);
  }
  return width;
}

std::string CutToWidth(std::string_view text, int width) {
  if (DisplayWidth(text) <= width) return std::string(text);
  if (width <= 0) return {};
  int used = 0;
  std::size_t end = 0;
  while (end < text.size()) {
    const auto [character, size] = DecodeFirst(text.substr(end));
    // One column is the ellipsis's.
    if (used + Columns(character) > width - 1) break;
    used += Columns(character);
    end += size;
  }
  return std::string(text.substr(0, end)) + "\u2026";
}

}  // namespace zrkhost
