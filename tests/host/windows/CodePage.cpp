#include "windows/CodePage.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "support/JapaneseCodePage.h"
#include "text/NativeText.h"
#include "windows/CommandLine.h"

namespace {

// How many of the 256 bytes can start a letter of two.
int LeadBytes() {
  int count = 0;
  for (int byte = 0; byte < 256; ++byte) count += IsDBCSLeadByte(static_cast<BYTE>(byte)) ? 1 : 0;
  return count;
}

TEST(CodePage, HasNoLettersOfTwoBytesAtFirst) {
  EXPECT_EQ(standin::CodePage(), standin::kUtf8CodePage);
  EXPECT_EQ(LeadBytes(), 0);
}

TEST(CodePage, HasTheLeadBytesAndLettersOfTheOneThatIsSet) {
  // U+4E00, which all of them have.
  struct Page {
    unsigned int Number;
    int LeadBytes;
    const char* Letter;
  };
  for (const Page& page : {Page{932, 60, "\x88\xEA"}, Page{936, 126, "\xD2\xBB"}, Page{949, 126, "\xEC\xE9"},
                           Page{950, 126, "\xA4\x40"}}) {
    standin::SetCodePage(page.Number);
    EXPECT_EQ(LeadBytes(), page.LeadBytes) << page.Number;
    EXPECT_EQ(standin::WideFromNative(page.Letter), L"\u4E00") << page.Number;
    EXPECT_EQ(standin::NativeFromWide(L"\u4E00"), page.Letter) << page.Number;
    standin::SetCodePage(standin::kUtf8CodePage);
  }
}

TEST(CodePage, GivesBytesThatAreNoPartOfALetterBack) {
  const JapaneseCodePage page;
  for (const std::string bytes : {"\x95", "a\xFF", "\x81\x20"}) {
    EXPECT_EQ(standin::NativeFromWide(standin::WideFromNative(bytes)), bytes)
        << testing::PrintToString(bytes);
  }
}

TEST(CodePage, OfALetterBeforeAQuoteHasNoBackslash) {
  const JapaneseCodePage page;
  EXPECT_EQ(standin::SplitCommandLine(" \"a\x95\\\" b"), (std::vector<std::string>{"", "a\x95\\", "b"}));
}

}  // namespace
