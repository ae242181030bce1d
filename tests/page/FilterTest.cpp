#include "ShownPage.h"

namespace {

class PageFilter : public PageTest {
protected:
  std::string Link() { return browser_.Run("location.hash"); }
  void Search(const std::string& text) {
    browser_.Run("(() => { const field = document.querySelector('input'); field.value = " +
                 Json(text).dump() + "; field.dispatchEvent(new InputEvent('input')); })()");
  }
  std::string Pressed() {
    return browser_.Run(
        "[...document.querySelectorAll('[aria-pressed=true]')].map(button => button.textContent).join()");
  }
};

TEST_F(PageFilter, OfALinkShowsTheRowsOfAStatusAndTheirParents) {
  const Json report = WriteCar();
  browser_.Open(page_, "status=Locked");
  EXPECT_EQ(OnlyShown(RowsShown(browser_)),
            RowsThatFit(report, [](const Json& cells) { return cells.at(2) == "Locked"; }));
  ExpectShown({"car", "body.1", "hood.1", "axle.1", "wheel.1", "axle.2", "wheel.1"});
  EXPECT_EQ(Pressed(), "3 Locked");
}

TEST_F(PageFilter, OfALinkShowsTheRowsThatHoldATextInAnyColumn) {
  const Json report = WriteCar();
  browser_.Open(page_, "q=HOOD");
  ExpectShown({"car", "body.1", "hood.1", "axle.2"});
  browser_.Open(page_, "q=1.7");
  ExpectShown({"car"});
  browser_.Open(page_, "q=chlo%C3%89");
  ExpectShown({"car", "axle.1", "wheel.1", "axle.2", "wheel.1"});
}

TEST_F(PageFilter, OfALinkTakesAStatusAndATextTogether) {
  WriteCar();
  browser_.Open(page_, "q=hood&status=Locked");
  ExpectShown({"car", "body.1", "hood.1"});
  EXPECT_EQ(browser_.Run("document.querySelector('input').value"), "hood");
}

TEST_F(PageFilter, FollowsTheLinkWhenItChanges) {
  WriteCar();
  browser_.Open(page_);
  browser_.Run(
      "new Promise(done => { addEventListener('hashchange', done); location.hash = '#status=Edit'; })");
  ExpectShown({"car", "axle.1"});
}

TEST_F(PageFilter, FindsWhatHasNoStatus) {
  WriteCar();
  browser_.Open(page_, "status=");
  ExpectShown({"car", "body.1", "screw.1"});
}

TEST_F(PageFilter, TellsThatNothingFits) {
  WriteCar();
  browser_.Open(page_, "status=locked");
  ExpectShown({});
  EXPECT_EQ(browser_.Run("document.querySelector('main').innerText.trim()"), "No product fits. Show all");
  browser_.Click("main button");
  EXPECT_EQ(OnlyShown(RowsShown(browser_)).size(), 10U);
  EXPECT_EQ(Link(), "");
}

TEST_F(PageFilter, KeepsTheViewInTheLink) {
  WriteCar();
  browser_.Open(page_);
  browser_.Click("button:has(.locked)");
  EXPECT_EQ(Link(), "#status=Locked");
  Search("hood & more");
  EXPECT_EQ(Link(), "#status=Locked&q=hood+%26+more");
  Search("hood");
  ExpectShown({"car", "body.1", "hood.1"});
  // A second time on the same button takes the status off again.
  browser_.Click("button:has(.locked)");
  EXPECT_EQ(Link(), "#q=hood");
  Search("");
  EXPECT_EQ(Link(), "");
  EXPECT_EQ(Pressed(), "10 All");
}

TEST_F(PageFilter, OpensWhatFits) {
  WriteCar();
  browser_.Open(page_);
  browser_.Click("[data-do=close]");
  ExpectShown({"car", "body.1", "axle.1", "axle.2"});
  Search("tyre");
  ExpectShown({"car", "axle.1", "wheel.1", "tyre.1", "axle.2", "wheel.1", "tyre.1"});
}

TEST_F(PageFilter, LeavesNothingToOpenWhereNothingBelowFits) {
  WriteCar();
  browser_.Open(page_, "status=Edit");
  EXPECT_EQ(browser_.Run("document.querySelectorAll('tr:not([hidden])[aria-expanded]').length"), 1);
}

TEST_F(PageFilter, TellsHowManyRowsFit) {
  WriteCar();
  browser_.Open(page_, "status=Locked");
  EXPECT_EQ(browser_.Run("document.querySelector('[role=status]').textContent"), ", 3 found");
}

TEST_F(PageFilter, GivesWayToAHeldFileThatItHides) {
  WriteCar();
  browser_.Open(page_, "q=screw");
  browser_.Click("aside a[href='#p3']");
  EXPECT_EQ(Focused(), "hood.1");
  EXPECT_EQ(Link(), "");
}

}  // namespace
