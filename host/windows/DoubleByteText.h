#pragma once

#include <string>
#include <string_view>

// Between 8-bit text in a code page with letters of two bytes, the one that is set (CodePage.h), and wide
// text. Otherwise as WideFromNative and NativeFromWide.
namespace standin {

// A byte B that is no part of a character becomes U+DC00 + B.
std::wstring WideFromDoubleByte(std::string_view text);
// What the code page does not have becomes "?"; U+DC80..U+DCFF the bytes they stand for.
std::string DoubleByteFromWide(std::wstring_view text);

}  // namespace standin
