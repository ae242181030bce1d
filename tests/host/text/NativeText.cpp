#include "text/NativeText.h"
#include "support/Platform.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using standin::CountCharacters;
using standin::NativeFromUtf8;
using standin::NativeFromWide;
using standin::WideFromNative;

class NativeText : public testing::Test {
protected:
  void SetUp() override {
    if (!kTextIsUtf8) GTEST_SKIP() << "the 8-bit encoding is not UTF-8";
  }
};

TEST_F(NativeText, WidensEveryLengthOfCharacter) {
  EXPECT_EQ(WideFromNative("A\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"),
            std::wstring(L"A\x7F\u0080\u07FF\u0800\xFFFF\U00010000\U0010FFFF"));
}

TEST_F(NativeText, EscapesBytesThatAreNoPartOfACharacterAndGivesThemBack) {
  for (const std::string bytes :
       {"\xC3", "\xE2\x82", "\xF0\x9F\x99", "\x80", "\xFF\xFE", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80",
        "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3z", "\xF0\x80\x80\x80"}) {
    std::wstring escaped;
    for (const char byte : bytes) {
      const auto value = static_cast<unsigned char>(byte);
      escaped.push_back(static_cast<wchar_t>(value < 0x80 ? value : 0xDC00 + value));
    }
    EXPECT_EQ(WideFromNative(bytes), escaped) << testing::PrintToString(bytes);
    EXPECT_EQ(NativeFromWide(escaped), bytes) << testing::PrintToString(bytes);
  }
}

TEST_F(NativeText, ReplacesWideValuesThatAreNoCharacters) {
  const std::wstring wide{static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0xDC7F),
                          static_cast<wchar_t>(0x110000), static_cast<wchar_t>(-1)};
  EXPECT_EQ(NativeFromWide(wide), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST_F(NativeText, CountsWhatItWidens) {
  for (const std::string text :
       {"", "abc", "\xC3\xA9", "\xC3", "a\xE2\x82\xAC\xE2\x82", "\xF0\x9F\x99\x82\x80"}) {
    EXPECT_EQ(CountCharacters(text), static_cast<int>(WideFromNative(text).size()));
  }
}

TEST_F(NativeText, LeavesUtf8AsItIs) {
  EXPECT_EQ(NativeFromUtf8("\xC3\xA9\xFF"), "\xC3\xA9\xFF");
}

TEST(NativeTextEverywhere, PassesAsciiThrough) {
  EXPECT_EQ(WideFromNative("a\\b \"c\"\r\n"), L"a\\b \"c\"\r\n");
  EXPECT_EQ(NativeFromWide(L"a\\b \"c\"\r\n"), "a\\b \"c\"\r\n");
  EXPECT_EQ(NativeFromUtf8("a\\b"), "a\\b");
  EXPECT_EQ(WideFromNative(""), L"");
  EXPECT_EQ(NativeFromWide(L""), "");
}

}  // namespace
