#include "ShownPage.h"

namespace {

// The keys of a tree grid.
class PageKeyboard : public PageTest {
protected:
  PageKeyboard() {
    WriteCar();
    browser_.Open(page_);
    browser_.Run("document.querySelector('tbody > tr').focus()");
  }
  void Press(const std::vector<std::string>& keys) {
    for (const std::string& key : keys) browser_.Press(key);
  }
};

TEST_F(PageKeyboard, GoesUpAndDownTheRows) {
  Press({"ArrowDown", "ArrowDown"});
  EXPECT_EQ(Focused(), "hood.1");
  Press({"ArrowUp"});
  EXPECT_EQ(Focused(), "body.1");
  Press({"End"});
  EXPECT_EQ(Focused(), "tyre.1");
  Press({"ArrowDown"});
  EXPECT_EQ(Focused(), "tyre.1");
  Press({"Home", "ArrowUp"});
  EXPECT_EQ(Focused(), "car");
  Press({"PageDown"});
  EXPECT_EQ(Focused(), "tyre.1");
}

TEST_F(PageKeyboard, ClosesARowAndGoesToItsParentOnTheLeft) {
  Press({"ArrowDown", "ArrowDown", "ArrowLeft"});
  EXPECT_EQ(Focused(), "body.1");
  Press({"ArrowLeft"});
  EXPECT_EQ(Focused(), "body.1");
  ExpectShown({"car", "body.1", "axle.1", "wheel.1", "tyre.1", "axle.2", "wheel.1", "tyre.1"});
  Press({"ArrowLeft"});
  EXPECT_EQ(Focused(), "car");
}

TEST_F(PageKeyboard, OpensARowAndGoesIntoItOnTheRight) {
  Press({"ArrowLeft"});
  ExpectShown({"car"});
  Press({"ArrowRight"});
  EXPECT_EQ(Focused(), "car");
  EXPECT_EQ(OnlyShown(RowsShown(browser_)).size(), 10U);
  Press({"ArrowRight", "ArrowRight"});
  EXPECT_EQ(Focused(), "hood.1");
  // Nothing is below it.
  Press({"ArrowRight"});
  EXPECT_EQ(Focused(), "hood.1");
}

TEST_F(PageKeyboard, KeepsWhatIsClosedWithinAClosedRow) {
  Press({"ArrowDown", "ArrowLeft", "ArrowLeft", "ArrowLeft"});
  ExpectShown({"car"});
  Press({"ArrowRight"});
  ExpectShown({"car", "body.1", "axle.1", "wheel.1", "tyre.1", "axle.2", "wheel.1", "tyre.1"});
}

TEST_F(PageKeyboard, OpensAndClosesWithEnterAndWithTheMouse) {
  Press({"Enter"});
  ExpectShown({"car"});
  Press({"Enter"});
  browser_.Click("tr[aria-level='2'] i");
  EXPECT_EQ(Focused(), "body.1");
  EXPECT_EQ(OnlyShown(RowsShown(browser_)).size(), 8U);
}

TEST_F(PageKeyboard, ReachesTheTreeAsOneStop) {
  Press({"ArrowDown", "ArrowDown", "Tab"});
  EXPECT_EQ(browser_.Run("document.activeElement.matches('aside a')"), true);
  browser_.Run("document.querySelector('[data-do=close]').focus()");
  Press({"Tab"});
  EXPECT_EQ(Focused(), "hood.1");
}

TEST_F(PageKeyboard, LeavesNoFocusOnARowThatIsHidden) {
  Press({"End"});
  browser_.Click("[data-do=close]");
  browser_.Run("document.querySelector('[data-do=close]').focus()");
  Press({"Tab"});
  EXPECT_EQ(Focused(), "car");
}

TEST_F(PageKeyboard, GoesToAHeldFileFromTheList) {
  Press({"ArrowLeft"});
  browser_.Run("document.querySelector('aside a[href=\"#p3\"]').focus()");
  Press({"Enter"});
  EXPECT_EQ(Focused(), "hood.1");
}

}  // namespace
