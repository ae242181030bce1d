#include "terminal/DisplayText.h"

#include <gtest/gtest.h>

namespace {

using zrkhost::CutToWidth;
using zrkhost::DisplayText;
using zrkhost::DisplayWidth;
using zrkhost::LineBreaks;
using zrkhost::OneLine;

TEST(DisplayText, LeavesReadableTextAsItIs) {
  EXPECT_EQ(DisplayText("C:\\wc\\Tür 門.CATPart"), "C:\\wc\\Tür 門.CATPart");
}

TEST(DisplayText, EscapesControlCharacters) {
  EXPECT_EQ(DisplayText("a\tb\r\nc"), "a\\tb\\r\\nc");
  EXPECT_EQ(DisplayText("\x1b[31m\x07\x7f"), "\\x1b[31m\\x07\\x7f");
  EXPECT_EQ(DisplayText(std::string_view("\0", 1)), "\\x00");
  EXPECT_EQ(DisplayText("\u009b31m\u0085"), "\\u009b31m\\u0085");
}

TEST(DisplayText, EscapesWhatReordersALine) {
  EXPECT_EQ(DisplayText("a\u202eb\u2028c"), "a\\u202eb\\u2028c");
}

TEST(DisplayText, EscapesBytesThatAreNoCharacter) {
  EXPECT_EQ(DisplayText("\xff\xc3"), "\\xff\\xc3");
  EXPECT_EQ(DisplayText("\xc0\x9b"), "\\xc0\\x9b");
  EXPECT_EQ(DisplayText("\xed\xa0\x80"), "\\xed\\xa0\\x80");
  EXPECT_EQ(DisplayText("\xf5\x80\x80\x80"), "\\xf5\\x80\\x80\\x80");
}

TEST(DisplayText, KeepsLineBreaksWhereTheyAreWanted) {
  EXPECT_EQ(DisplayText("a\r\nb\nc\rd\x1b", LineBreaks::Keep), "a\nb\nc\\rd\\x1b");
}

TEST(OneLine, PutsABlankBetweenLines) {
  EXPECT_EQ(OneLine("Locked by: \nben"), "Locked by: ben");
  EXPECT_EQ(OneLine("a\r\n \n\n\tb c \n"), "a b c");
  EXPECT_EQ(OneLine("\n"), "");
  EXPECT_EQ(OneLine(""), "");
}

TEST(OneLine, ShortensRuledLinesAndLeavesThemOutAtTheEnds) {
  EXPECT_EQ(OneLine("Locked by: \nben\n-------------\nweek 12"), "Locked by: ben - week 12");
  EXPECT_EQ(OneLine("---\nben\n-------------\n"), "ben");
}

TEST(OneLine, EscapesControlCharacters) {
  EXPECT_EQ(OneLine("a\x1b[2J\nb\rc"), "a\\x1b[2J b\\rc");
}

TEST(DisplayWidth, CountsColumns) {
  EXPECT_EQ(DisplayWidth(""), 0);
  EXPECT_EQ(DisplayWidth("Tür"), 3);
  EXPECT_EQ(DisplayWidth("門"), 2);
  EXPECT_EQ(DisplayWidth("e\u0301"), 1);
  EXPECT_EQ(DisplayWidth("\U0001F600"), 2);
}

TEST(DisplayWidth, CountsTwoForEastAsianCharactersAndEmoji) {
  for (const char* wide : {"\u1100", "\uD55C", "\u3042", "\uFF21", "\u3001", "\u231A", "\u2B50", "\U0001F697",
                           "\U0001F9F2", "\U0001FA9B", "\U0001F680", "\U00020000"}) {
    EXPECT_EQ(DisplayWidth(wide), 2) << wide;
  }
}

TEST(DisplayWidth, CountsNoneForMarksAndCharactersWithoutShape) {
  for (const char* none : {"\u0301", "\u0483", "\u0E34", "\u05B0", "\u093C", "\u20D0", "\u200B", "\u200D",
                           "\uFE0F", "\uFEFF", "\U000E0101"}) {
    EXPECT_EQ(DisplayWidth(none), 0) << none;
  }
}

TEST(DisplayWidth, CountsOneForAllOthers) {
  for (const char* narrow : {"a", "\u00E9", "\u00AD", "\u0416", "\u03B1", "\u05D0", "\u0E01", "\u2764",
                             "\uFF71", "\u2026", "\U0001D400"}) {
    EXPECT_EQ(DisplayWidth(narrow), 1) << narrow;
  }
}

TEST(CutToWidth, LeavesWhatFits) {
  EXPECT_EQ(CutToWidth("abc", 3), "abc");
  EXPECT_EQ(CutToWidth("", 0), "");
}

TEST(CutToWidth, EndsWithAnEllipsisWhatDoesNot) {
  EXPECT_EQ(CutToWidth("abcd", 3), "ab…");
  EXPECT_EQ(CutToWidth("abcd", 1), "…");
  EXPECT_EQ(CutToWidth("abcd", 0), "");
  EXPECT_EQ(CutToWidth("abcd", -5), "");
}

TEST(CutToWidth, CutsNoCharacterInTwo) {
  EXPECT_EQ(CutToWidth("門門門", 4), "門…");
  EXPECT_EQ(CutToWidth("üüü", 2), "ü…");
  EXPECT_EQ(CutToWidth("e\u0301e\u0301e\u0301", 2), "e\u0301…");
}

}  // namespace
