#include "text/NativeText.h"

#include <cstddef>

#include "windows/CodePage.h"
#include "windows/DoubleByteText.h"

namespace standin {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Decoded {
  char32_t Character;
  std::size_t Bytes;
};

bool IsSurrogate(char32_t character) {
  return character >= 0xD800 && character <= 0xDFFF;
}

// The character at `position`; where there is none, the escape of the one byte there.
Decoded DecodeAt(std::string_view text, std::size_t position) {
  const auto byteAt = [&](std::size_t offset) -> char32_t {
    return static_cast<unsigned char>(text[position + offset]);
  };
  const char32_t lead = byteAt(0);
  if (lead < 0x80) return {lead, 1};

  const Decoded noCharacter{kByteEscape + lead, 1};
  std::size_t length = 0;
  char32_t smallest = 0;
  char32_t character = 0;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
    smallest = 0x80;
    character = lead & 0x1F;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    smallest = 0x800;
    character = lead & 0x0F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    smallest = 0x10000;
    character = lead & 0x07;
  } else {
    return noCharacter;
  }
  if (text.size() - position < length) return noCharacter;
  for (std::size_t offset = 1; offset < length; ++offset) {
    if ((byteAt(offset) & 0xC0) != 0x80) return noCharacter;
    character = (character << 6) | (byteAt(offset) & 0x3F);
  }
  if (character < smallest || character > 0x10FFFF || IsSurrogate(character)) return noCharacter;
  return {character, length};
}

void AppendUtf8(std::string& text, char32_t character) {
  const auto append = [&](char32_t byte) {
    text.push_back(static_cast<char>(static_cast<unsigned char>(byte)));
  };
  const auto appendContinuation = [&](int shift) { append(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) {
    append(character);
  } else if (character < 0x800) {
    append(0xC0 | (character >> 6));
    appendContinuation(0);
  } else if (character < 0x10000) {
    append(0xE0 | (character >> 12));
    appendContinuation(6);
    appendContinuation(0);
  } else {
    append(0xF0 | (character >> 18));
    appendContinuation(12);
    appendContinuation(6);
    appendContinuation(0);
  }
}

std::wstring WideFromUtf8(std::string_view text) {
  std::wstring wide;
  wide.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) {
    const Decoded decoded = DecodeAt(text, position);
    wide.push_back(static_cast<wchar_t>(decoded.Character));
    position += decoded.Bytes;
  }
  return wide;
}

std::string Utf8FromWide(std::wstring_view text) {
  std::string native;
  native.reserve(text.size());
  for (const wchar_t wide : text) {
    const auto character = static_cast<char32_t>(wide);
    if (character >= kByteEscape + 0x80 && character <= kByteEscape + 0xFF) {
      native.push_back(static_cast<char>(static_cast<unsigned char>(character - kByteEscape)));
    } else if (character > 0x10FFFF || IsSurrogate(character)) {
      AppendUtf8(native, kReplacement);
    } else {
      AppendUtf8(native, character);
    }
  }
  return native;
}

bool IsUtf8() {
  return CodePage() == kUtf8CodePage;
}

}  // namespace

std::wstring WideFromNative(std::string_view text) {
  return IsUtf8() ? WideFromUtf8(text) : WideFromDoubleByte(text);
}

std::string NativeFromWide(std::wstring_view text) {
  return IsUtf8() ? Utf8FromWide(text) : DoubleByteFromWide(text);
}

std::string NativeFromUtf8(std::string_view text) {
  return IsUtf8() ? std::string(text) : DoubleByteFromWide(WideFromUtf8(text));
}

int CountCharacters(std::string_view text) {
  if (!IsUtf8()) return static_cast<int>(WideFromDoubleByte(text).size());
  int count = 0;
  for (std::size_t position = 0; position < text.size(); ++count) position += DecodeAt(text, position).Bytes;
  return count;
}

}  // namespace standin
