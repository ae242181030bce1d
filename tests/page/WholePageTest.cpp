#include <algorithm>
#include <chrono>

#include "ShownPage.h"

namespace {

class WholePage : public PageTest {};

TEST_F(WholePage, HasItsTreeWithoutTheScript) {
  const Json report = WriteCar();
  browser_.AllowScripts(false);
  browser_.Open(page_);
  EXPECT_EQ(browser_.Run("document.documentElement.className"), "");
  EXPECT_EQ(RowsShown(browser_), RowsOf(report));
  EXPECT_EQ(HoldersShown(browser_),
            Json({{{"owner", "This working copy"}, {"files", Json::array({"axle.CATPart: Edit"})}},
                  {{"owner", "ben"}, {"files", Json::array({"hood.CATPart: Locked"})}},
                  {{"owner", "chlo\u00e9"}, {"files", Json::array({"wheel.CATPart: Locked"})}}}));
  // What would do nothing is not there.
  EXPECT_EQ(browser_.Run("document.querySelector('input').checkVisibility()"), false);
  EXPECT_EQ(browser_.Run("document.querySelectorAll('button:enabled').length === "
                         "document.querySelectorAll('.live-only button, .none button').length"),
            true);
}

TEST_F(WholePage, KeepsTheLineEndsOfAComment) {
  WriteCar();
  browser_.Open(page_);
  EXPECT_EQ(browser_.Run("document.querySelector('#p3').cells[4].innerText"),
            "hood.CATPart\nben\nSat Nov 21\nvault\n/home/ben");
}

TEST_F(WholePage, TellsWhenItWasMade) {
  const auto before = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  WriteCar();
  const auto after = std::chrono::system_clock::now();
  browser_.Open(page_);
  const double made = browser_.Run("Date.parse(document.querySelector('time').dateTime) / 1000");
  EXPECT_GE(made, std::chrono::duration<double>(before.time_since_epoch()).count());
  EXPECT_LE(made, std::chrono::duration<double>(after.time_since_epoch()).count());
}

TEST_F(WholePage, NeedsNothingElse) {
  WriteCar();
  browser_.Open(page_);
  EXPECT_EQ(browser_.Run("performance.getEntriesByType('resource').length"), 0);
  EXPECT_EQ(browser_.Run("document.querySelectorAll('[src], link, iframe, object, embed, img').length"), 0);
}

TEST_F(WholePage, FitsANarrowWindow) {
  WriteCar();
  browser_.Open(page_);
  browser_.Call("Emulation.setDeviceMetricsOverride",
                {{"width", 360}, {"height", 640}, {"deviceScaleFactor", 1}, {"mobile", false}});
  EXPECT_LE(browser_.Run("document.documentElement.scrollWidth"), 360);
}

TEST_F(WholePage, ShowsEveryParameterOfTheClass) {
  Write({{"root", "car"},
         {"attributeClass", {{"parameters", {"Colour", "Weight"}}}},
         {"products", {{"car", {{"attributes", {{"Colour", "red"}}}}}}}});
  browser_.Open(page_);
  EXPECT_EQ(browser_.Run("[...document.querySelectorAll('tr')].map(row => "
                         "[...row.cells].map(cell => cell.textContent))"),
            Json({{"Product", "Colour", "Weight"}, {"car", "red", ""}}));
  browser_.Open(page_, "q=red");
  ExpectShown({"car"});
}

TEST_F(WholePage, IsThereWithoutAttributes) {
  Write({{"root", "car"}, {"attributeClass", nullptr}, {"products", {{"car", Json::object()}}}});
  browser_.Open(page_);
  ExpectShown({"car"});
  EXPECT_EQ(browser_.Run("document.querySelector('aside').innerText"),
            "Who holds what\n\nNobody holds a file.");
}

// The file that the pages are made from.
class SourceOfThePage : public PageTest {
protected:
  const std::string source_ = ReadFile(PAGE_SOURCE);
};

TEST_F(SourceOfThePage, OpensWithItsSample) {
  browser_.Open(PAGE_SOURCE, "q=hood");
  ExpectShown({"Roadster", "body.1", "hood.1"});
}

// The browser runs no script that the page's policy does not name.
TEST_F(SourceOfThePage, NamesItsScriptByItsHash) {
  browser_.Open(PAGE_SOURCE);
  const std::string hash = browser_.Run(
      "(async () => { const script = document.querySelector('script[type=module]').textContent;"
      "const hash = await crypto.subtle.digest('SHA-256', new TextEncoder().encode(script));"
      "return btoa(String.fromCharCode(...new Uint8Array(hash))); })()");
  EXPECT_THAT(source_, testing::HasSubstr("script-src 'sha256-" + hash + "'"));
}

TEST_F(SourceOfThePage, IsSmall) {
  EXPECT_LT(std::count(source_.begin(), source_.end(), '\n'), 400);
}

}  // namespace
