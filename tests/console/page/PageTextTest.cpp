#include "page/PageText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace {

using zrkhost::FillPage;
using zrkhost::HtmlText;
using zrkhost::JsonForScript;

TEST(HtmlText, NamesWhatIsMarkup) {
  EXPECT_EQ(HtmlText("a < b > \"c\" & d's"), "a &lt; b &gt; &quot;c&quot; &amp; d's");
}

TEST(HtmlText, KeepsLineEndsAndTabs) {
  EXPECT_EQ(HtmlText("a\nb\r\nc\td"), "a\nb\nc\td");
}

TEST(HtmlText, ShowsControlCharactersByTheirPictures) {
  EXPECT_EQ(HtmlText("\x01\x1b\x1f\x7f\r"), "\u2401\u241b\u241f\u2421\u240d");
}

TEST(HtmlText, ReplacesWhatHtmlDoesNotTake) {
  EXPECT_EQ(HtmlText("\u0080\u009f\uFDD0\uFFFF\U0001FFFE\xff"), "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(HtmlText, LeavesAllOtherCharacters) {
  EXPECT_EQ(HtmlText("\u00a0\u202e\u2028 ü 👩‍🔧\U0010FFFD"),
            "\u00a0\u202e\u2028 ü 👩‍🔧\U0010FFFD");
}

TEST(JsonForScript, HoldsTheSameTextWithoutAnyMarkup) {
  const nlohmann::json text = "</script><!-- & \u2028\u2029 \\ \" 👩‍🔧 \u2027";
  const std::string json = JsonForScript(text.dump());
  EXPECT_EQ(nlohmann::json::parse(json), text);
  EXPECT_EQ(json.find_first_of("<>&"), std::string::npos);
  EXPECT_EQ(json.find("\u2028"), std::string::npos);
  EXPECT_EQ(json.find("\u2029"), std::string::npos);
}

TEST(FillPage, PutsPartsInPlaceOfTheSamples) {
  EXPECT_EQ(FillPage("1 <!--[a]-->sample<!--[/a]--> 2 <!--[b]--><!-- x --><!--[/b]--> <!-- 3 -->",
                     {{"a", "A"}, {"b", ""}}),
            "1 A 2  <!-- 3 -->");
}

TEST(FillPage, LeavesMarksInAPartAlone) {
  EXPECT_EQ(FillPage("<!--[a]--><!--[/a]-->", {{"a", "<!--[a]-->"}}), "<!--[a]-->");
}

TEST(FillPage, MissesNoPart) {
  EXPECT_THROW(FillPage("<!--[a]--><!--[/a]-->", {{"b", ""}}), std::logic_error);
  EXPECT_THROW(FillPage("<!--[a]-->", {{"a", ""}}), std::logic_error);
}

}  // namespace
