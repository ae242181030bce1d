#include "tools/QuestionSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using zrk::tools::QuestionSearch;

TEST(QuestionSearch, FindsTheQuestionHoweverItComes) {
  const std::string text = "a.CATPart has been modified; revert changes? ";
  const std::size_t end = text.find('?');
  for (std::size_t step = 1; step <= text.size(); ++step) {
    QuestionSearch search;
    std::size_t length = 0;
    do {
      length = std::min(length + step, text.size());
      ASSERT_EQ(search.FindIn(std::string_view(text).substr(0, length)), length >= end) << length;
    } while (length < end);
  }
}

TEST(QuestionSearch, FindsItAtTheFrontWhateverOfItCameFirst) {
  const std::string question = "revert changes";
  for (std::size_t first = 0; first < question.size(); ++first) {
    QuestionSearch search;
    EXPECT_FALSE(search.FindIn(question.substr(0, first)));
    EXPECT_TRUE(search.FindIn(question)) << first;
  }
}

TEST(QuestionSearch, FindsItBehindWordsThatResembleIt) {
  EXPECT_TRUE(QuestionSearch().FindIn("g, revert change, invert changes, revert changes"));
}

TEST(QuestionSearch, FindsItBehindALetterThatIsShorterNowThatItIsWhole) {
  const std::string before(100, 'x');
  QuestionSearch search;
  EXPECT_FALSE(search.FindIn(before + "\xEF\xBF\xBD\xEF\xBF\xBD"));
  EXPECT_TRUE(search.FindIn(before + "\xC3\xA4revert changes"));
}

TEST(QuestionSearch, FindsItBehindALetterThatIsLongerNowThatItIsWhole) {
  const std::string before(100, 'x');
  QuestionSearch search;
  EXPECT_FALSE(search.FindIn(before + "?"));
  EXPECT_TRUE(search.FindIn(before + "\xE8\xA1\xA8revert changes"));
}

TEST(QuestionSearch, LooksAtATextThatBecameShorter) {
  QuestionSearch search;
  EXPECT_FALSE(search.FindIn(std::string(100, 'x')));
  EXPECT_FALSE(search.FindIn("xx"));
  EXPECT_TRUE(search.FindIn("xx revert changes"));
}
