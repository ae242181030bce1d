#include "text/TextSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using zrk::text::TextSearch;

TEST(TextSearch, FindsTheFirstOccurrence) {
  EXPECT_EQ(TextSearch("changes").Find("revert changes? changes"), 7u);
  EXPECT_EQ(TextSearch("changes").Find("changes"), 0u);
  EXPECT_EQ(TextSearch("changes").Find("no change"), std::string::npos);
  EXPECT_EQ(TextSearch("changes").Find(""), std::string::npos);
}

TEST(TextSearch, LeavesOutWhatStartsBefore) {
  EXPECT_EQ(TextSearch("aa").Find("aaa", 1), 1u);
  EXPECT_EQ(TextSearch("aa").Find("aaa", 2), std::string::npos);
  EXPECT_EQ(TextSearch("aa").Find("aaa", 9), std::string::npos);
}

TEST(TextSearch, FindsTheShortestTexts) {
  EXPECT_EQ(TextSearch("").Find("text"), 0u);
  EXPECT_EQ(TextSearch("x").Find("text"), 2u);
}

TEST(TextSearch, FindsTextsOfAnyByte) {
  const std::string text("a\0b\xFF\x80\n", 6);
  EXPECT_EQ(TextSearch("\xFF\x80").Find(text), 3u);
  EXPECT_EQ(TextSearch(std::string_view("\0b", 2)).Find(text), 1u);
}

// Few letters make beginnings, repetitions and overlaps frequent.
TEST(TextSearch, FindsWhatAStepByStepSearchFinds) {
  std::mt19937 random(1);
  const auto letters = [&](std::size_t length) {
    std::string text;
    while (text.size() < length) text += static_cast<char>('a' + random() % 3);
    return text;
  };
  for (int round = 0; round < 20'000; ++round) {
    const std::string text = letters(random() % 200);
    const std::string searched = letters(random() % 8);
    const std::size_t from = random() % 20;
    ASSERT_EQ(TextSearch(searched).Find(text, from), text.find(searched, from))
        << "searched " << searched << " in " << text << " from " << from;
  }
}

TEST(TextSearch, FindsTextsLongerThanAnyStep) {
  const std::string searched = std::string(300, 'a') + "b" + std::string(300, 'a');
  EXPECT_EQ(TextSearch(searched).Find(std::string(1000, 'a') + "b" + std::string(300, 'a')), 700u);
}
