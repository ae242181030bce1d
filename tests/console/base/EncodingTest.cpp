#include "base/Encoding.h"

#include <gtest/gtest.h>

namespace {

using zrkhost::Utf8FromWide;

TEST(Encoding, WritesWideTextAsUtf8) {
  EXPECT_EQ(Utf8FromWide(L"a\u00fc\u9580"), "a\u00fc\u9580");
  EXPECT_EQ(Utf8FromWide(L"\U0001F600"), "\U0001F600");
  EXPECT_EQ(Utf8FromWide(L""), "");
}

TEST(Encoding, JoinsSurrogatePairs) {
  const std::wstring pair = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
  EXPECT_EQ(Utf8FromWide(pair), "\U0001F600");
}

TEST(Encoding, ReplacesWhatIsNoCharacter) {
  EXPECT_EQ(Utf8FromWide(std::wstring{static_cast<wchar_t>(0xD83D)}), "\uFFFD");
  EXPECT_EQ(Utf8FromWide(std::wstring{static_cast<wchar_t>(0xDC80), L'a'}), "\uFFFDa");
  EXPECT_EQ(Utf8FromWide(std::wstring{static_cast<wchar_t>(0xD83D), L'a'}), "\uFFFDa");
}

TEST(Encoding, KeepsPathsThroughUtf8) {
  EXPECT_EQ(zrkhost::Utf8FromPath(zrkhost::PathFromUtf8("sub/T\u00fcr \u9580")), "sub/T\u00fcr \u9580");
}

TEST(Encoding, KeepsAsciiOfTheNativeEncoding) {
  EXPECT_EQ(zrkhost::Utf8FromNative("car"), "car");
}

}  // namespace
