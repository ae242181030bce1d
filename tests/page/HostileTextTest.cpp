#include "ShownPage.h"

namespace {

struct Kind {
  const char* Name;
  std::string Text;
  // What the page shows for it, where that is not the text itself.
  std::string Shown = {};
};

const std::vector<Kind> kKinds = {
    {"Markup", "<img src=x onerror=hit=1><b>bold</b> a<b"},
    {"Ampersands", "&lt;b&gt; &amp; &#60;script&#62; &copy &"},
    {"Quotes", "\" ' ` onclick=\"hit=1\" style='color:red'"},
    {"EndOfAScript", "</script ></SCRIPT/x></script><script>hit=1</script>"},
    {"EndOfOtherElements", "</bdi></td></tr></table></title></style><p>"},
    {"Comments", "<!-- --> <!--<script x --!> <![CDATA[ ]]> <?php ?>"},
    {"MarksOfThePage", "<!--[rows]--> <!--[/data]--> <!--[/tree]-->"},
    {"LineEnds", "one\ntwo\r\nthree\u2028four\u2029five\u0085six\n",
     "one\ntwo\nthree\u2028four\u2029five\uFFFDsix\n"},
    {"ControlCharacters", "a\x01\x07\x08\x0b\x0c\r\x1b[31m\x7f\u009bz\uFFFE",
     "a\u2401\u2407\u2408\u240b\u240c\u240d\u241b[31m\u2421\uFFFDz\uFFFD"},
    {"MarksOfDirection", "\u202eabc\u2066 \u200fשלום\u061c def"},
    {"Emoji", "👩‍🔧 🛞 🇪🇺 e\u0301 𝔘"},
    {"ScriptText", "\\u003c ${hit=1} `${hit=1}` javascript:hit=1 \\"},
};

// A text that stands wherever the page shows one that comes from outside.
class HostileText : public PageTest, public testing::WithParamInterface<Kind> {
protected:
  void Open() {
    const std::string& text = GetParam().Text;
    const Json attributes = {{"Status", "Locked"}, {text, text}, {"Comment", "Locked by: \n" + text}};
    Write({{"root", text},
           {"attributeClass", {{"parameters", {"Status", text, "Comment"}}}},
           {"products",
            {{text,
              {{"attributes", {{"Status", text}}},
               {"children",
                {{{"name", text}, {"reference", "part"}, {"attributes", attributes}},
                 {{"name", "other"}, {"reference", "part"}, {"attributes", attributes}}}}}},
             {"part", {{"document", "part.CATPart"}}}}}});
    browser_.Open(page_);
  }
  std::string Shown() const { return GetParam().Shown.empty() ? GetParam().Text : GetParam().Shown; }
};
INSTANTIATE_TEST_SUITE_P(Of, HostileText, testing::ValuesIn(kKinds),
                         [](const auto& kind) { return kind.param.Name; });

TEST_P(HostileText, ShowsAsTextWhereverItStands) {
  Open();
  const std::string text = Shown();
  EXPECT_EQ(browser_.Run("[...document.querySelectorAll('tr')].map(row => "
                         "[...row.cells].map(cell => cell.textContent))"),
            Json({{"Product", "Status", text, "Comment"},
                  {text, text, "", ""},
                  {text, "Locked", text, "Locked by: \n" + text},
                  {"other", "Locked", text, "Locked by: \n" + text}}));
  EXPECT_EQ(browser_.Run("document.querySelector('h1').textContent"), text);
  EXPECT_EQ(browser_.Run("document.querySelector('h3 bdi').textContent"), text);
  EXPECT_EQ(browser_.Run("document.querySelector('[aria-pressed]:last-of-type bdi').textContent"), text);
  EXPECT_EQ(browser_.Run("document.querySelector('title').textContent"), text + " – who holds what");
}

TEST_P(HostileText, BecomesNeitherMarkupNorScript) {
  Open();
  // The script has run to its end, and no other has.
  EXPECT_EQ(browser_.Run("document.documentElement.className"), "live");
  EXPECT_EQ(browser_.Run("typeof hit"), "undefined");
  EXPECT_EQ(browser_.Run("[document.scripts.length, document.body.children.length, "
                         "document.querySelectorAll('img, tbody b, p p, td[onclick], td[style]').length]"),
            Json({2, 5, 0}));
  EXPECT_EQ(browser_.Run("[...document.body.children].map(element => element.localName)"),
            Json({"header", "main", "aside", "script", "script"}));
}

TEST_P(HostileText, StandsInTheDataAsItIs) {
  Open();
  EXPECT_EQ(browser_.Run("JSON.parse(document.getElementById('data').textContent).products[1].slice(1)"),
            Json({GetParam().Text, "Locked", GetParam().Text, "Locked by: \n" + GetParam().Text}));
}

TEST_P(HostileText, CanBeSearchedAndFiltered) {
  Open();
  browser_.Click("[aria-pressed]:last-of-type");
  EXPECT_EQ(OnlyShown(RowsShown(browser_)).size(), 1U);
  const std::string link = browser_.Run("location.hash.slice(1)");
  browser_.Open(page_, link);
  EXPECT_EQ(OnlyShown(RowsShown(browser_)).size(), 1U);
}

TEST_F(PageTest, KeepsMarksOfDirectionToTheTextThatHoldsThem) {
  const std::string turned = "\u202eturned\u202e \u05d0";
  const Json attributes = {{"Revision", "1.4"}, {"Status", "Locked"}, {"Comment", "Locked by: \nben"}};
  Write({{"root", turned},
         {"products",
          {{turned,
            {{"children",
              {{{"name", "a"}, {"reference", "part"}, {"attributes", attributes}},
               {{"name", "b"}, {"reference", "part"}, {"attributes", attributes}}}}}},
           {"part", {{"document", "part.CATPart"}}}}}});
  browser_.Open(page_);
  // What follows the path in its line stands on its right.
  EXPECT_EQ(browser_.Run("(() => { const [path, more] = document.querySelector('small').childNodes;"
                         "const range = document.createRange(); range.selectNodeContents(more);"
                         "return [more.data, range.getBoundingClientRect().left >= "
                         "path.getBoundingClientRect().right - 1]; })()"),
            Json({" and 1 more place", true}));
}

}  // namespace
