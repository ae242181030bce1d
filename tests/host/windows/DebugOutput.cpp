#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "debug/DebugChannel.h"

namespace {

// The message as it arrives; "nothing" when none does.
std::wstring Delivered(const wchar_t* message) {
  std::wstring delivered = L"nothing";
  standin::SetDebugListener([&](const std::wstring& text) { delivered = text; });
  OutputDebugStringW(message);
  standin::SetDebugListener(nullptr);
  return delivered;
}

}  // namespace

TEST(DebugOutput, ArrivesWithEveryCharacter) {
  const std::wstring message = L"\u00E4\u03A9\u6F22\U0001F527\n";
  EXPECT_EQ(Delivered(message.c_str()), message);
}

TEST(DebugOutput, ArrivesWholeHoweverLong) {
  const std::wstring message(100000, L'x');
  EXPECT_EQ(Delivered(message.c_str()), message);
}

TEST(DebugOutput, IsEmptyWithoutAText) {
  EXPECT_EQ(Delivered(nullptr), L"");
}
