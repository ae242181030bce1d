#pragma once

#include <string>
#include <string_view>

// Between the platform's 8-bit encoding and wide text. The encoding is the active code page on Windows; on
// Linux it is UTF-8 unless windows/CodePage.h sets another.
namespace standin {

// A byte B that is no part of a character is carried as the lone surrogate U+DC00 + B, which no well-formed
// text holds.
inline constexpr char32_t kByteEscape = 0xDC00;

// Bytes that are no part of a character become one wide character each; on Linux these are
// U+DC80..U+DCFF, which NativeFromWide turns back into the bytes they came from.
std::wstring WideFromNative(std::string_view text);
// What is no character becomes the encoding's replacement character.
std::string NativeFromWide(std::wstring_view text);

// From text that is UTF-8 on every platform, such as the content of an XML document.
std::string NativeFromUtf8(std::string_view text);

// Length of WideFromNative(text).
int CountCharacters(std::string_view text);

}  // namespace standin
