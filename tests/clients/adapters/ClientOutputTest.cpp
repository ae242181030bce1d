#include "ClientOutput.h"

#include <gtest/gtest.h>

namespace {

// What comes of the text when it is given whole. Given byte by byte it must become the same.
template <class Translator>
std::string Translated(std::string_view text) {
  std::string whole;
  Translator().Translate(text, whole);

  std::string pieces;
  Translator translator;
  for (std::size_t position = 0; position < text.size(); ++position) {
    translator.Translate(text.substr(position, 1), pieces);
  }
  EXPECT_EQ(pieces, whole);
  return whole;
}

TEST(LineEndTranslator, PutsACarriageReturnBeforeEveryLineFeed) {
  EXPECT_EQ(Translated<LineEndTranslator>("a\n\nb\n"), "a\r\n\r\nb\r\n");
}

TEST(LineEndTranslator, LeavesLinesThatEndInBoth) {
  EXPECT_EQ(Translated<LineEndTranslator>("a\r\n\r\n"), "a\r\n\r\n");
}

TEST(LineEndTranslator, LeavesCarriageReturnsElsewhere) {
  EXPECT_EQ(Translated<LineEndTranslator>("a\rb\r\r\n"), "a\rb\r\r\n");
}

TEST(LineEndTranslator, GivesALineWithoutEndAtOnce) {
  EXPECT_EQ(Translated<LineEndTranslator>("revert changes? "), "revert changes? ");
}

TEST(LineEndTranslator, PassesEveryByte) {
  std::string bytes;
  std::string expected;
  for (int byte = 0; byte < 256; ++byte) {
    bytes += static_cast<char>(byte);
    if (byte == '\n') expected += '\r';
    expected += static_cast<char>(byte);
  }
  EXPECT_EQ(Translated<LineEndTranslator>(bytes), expected);
}

TEST(RevisionTrimmer, TakesTheDateOff) {
  EXPECT_EQ(Translated<RevisionTrimmer>("   Working revision:\t1.4\t2026-11-21 08:04:17 +0000\n"
                                        "   Repository revision:\t1.4\t/cvs/a.CATPart,v\n"),
            "   Working revision:\t1.4\n"
            "   Repository revision:\t1.4\t/cvs/a.CATPart,v\n");
}

TEST(RevisionTrimmer, TrimsEveryFileOfAReport) {
  EXPECT_EQ(Translated<RevisionTrimmer>("   Working revision:\t1.4\td\n===\n   Working revision:\t-1.5\te\n"),
            "   Working revision:\t1.4\n===\n   Working revision:\t-1.5\n");
}

TEST(RevisionTrimmer, LeavesLinesThatHoldNoDate) {
  for (const char* line :
       {"   Working revision:\tNew file!\n", "   Working revision:\tNo entry for a b.CATPart\n",
        "   Working revision:\t1.4\n", "   Working revision:\n"}) {
    EXPECT_EQ(Translated<RevisionTrimmer>(line), line);
  }
}

TEST(RevisionTrimmer, LeavesTheLabelElsewhereInALine) {
  const char* line = "cvs status:    Working revision:\t1.4\tdate\n";
  EXPECT_EQ(Translated<RevisionTrimmer>(line), line);
}

TEST(RevisionTrimmer, LeavesALineThatOnlyBeginsLikeTheLabel) {
  const char* line = "   Working copy\t1.4\tdate\n";
  EXPECT_EQ(Translated<RevisionTrimmer>(line), line);
}

TEST(RevisionTrimmer, EndsALineThatIsCutOff) {
  EXPECT_EQ(Translated<RevisionTrimmer>("   Working revision:\t1.4\t2026"), "   Working revision:\t1.4");
}

}  // namespace
