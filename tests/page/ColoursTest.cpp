#include "ShownPage.h"

namespace {

struct Look {
  const char* Name;
  const char* Scheme;
  const char* Media;
};

// Contrast of every text of the page to what is behind it, from the values that the browser computes.
class PageColours : public PageTest, public testing::WithParamInterface<Look> {
protected:
  // The texts below 4.5 to 1, each once, with their contrast; and how many texts were looked at.
  Json Faint() {
    return browser_.Run(R"js((() => {
      const canvas = document.createElement('canvas').getContext('2d', {willReadFrequently: true});
      const rgba = colour => {
        canvas.clearRect(0, 0, 1, 1);
        canvas.fillStyle = colour;
        canvas.fillRect(0, 0, 1, 1);
        return [...canvas.getImageData(0, 0, 1, 1).data];
      };
      const luminance = ([r, g, b]) => [r, g, b].map(v => v / 255)
        .map(v => v <= .04045 ? v / 12.92 : ((v + .055) / 1.055) ** 2.4)
        .reduce((sum, v, i) => sum + v * [.2126, .7152, .0722][i], 0);
      const behind = element => {
        for (let at = element; at; at = at.parentElement) {
          const colour = rgba(getComputedStyle(at).backgroundColor);
          if (colour[3] === 255) return colour;
          if (colour[3] !== 0) throw new Error('a half transparent ground');
        }
        return [255, 255, 255];
      };
      const contrast = (element, pseudo) => {
        const style = getComputedStyle(element, pseudo);
        if (style.opacity !== '1') throw new Error('a half transparent text');
        const one = luminance(rgba(style.color)) + .05, other = luminance(behind(element)) + .05;
        return Math.max(one, other) / Math.min(one, other);
      };
      const faint = new Set();
      let texts = 0;
      const look = (element, text, pseudo) => {
        ++texts;
        const found = contrast(element, pseudo);
        if (found < 4.5) faint.add(text + ' ' + found.toFixed(2));
      };
      const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
      while (walker.nextNode()) {
        const element = walker.currentNode.parentElement;
        if (walker.currentNode.data.trim() && element.checkVisibility() && !element.matches('script'))
          look(element, walker.currentNode.data.trim());
      }
      const input = document.querySelector('input');
      if (input.checkVisibility()) look(input, input.placeholder, '::placeholder'), look(input, 'input');
      return {faint: [...faint], texts};
    })())js");
  }
};
INSTANTIATE_TEST_SUITE_P(In, PageColours,
                         testing::Values(Look{"Light", "light", "screen"}, Look{"Dark", "dark", "screen"},
                                         Look{"Print", "light", "print"},
                                         Look{"PrintOfADarkScreen", "dark", "print"}),
                         [](const auto& look) { return look.param.Name; });

TEST_P(PageColours, HaveAContrastOfFourAndAHalfToOne) {
  WriteCar();
  browser_.SetMedia(GetParam().Scheme, GetParam().Media);
  browser_.Open(page_);
  const Json all = Faint();
  EXPECT_EQ(all.at("faint"), Json::array());
  EXPECT_GT(all.at("texts"), 50);
  // The rows above those that fit, one that has the focus, the button that is pressed.
  browser_.Open(page_, "status=Locked");
  browser_.Run("document.querySelector('tbody > tr').focus()");
  EXPECT_EQ(Faint().at("faint"), Json::array());
  browser_.PointAt("tbody > tr:nth-child(3)");
  EXPECT_EQ(Faint().at("faint"), Json::array());
}

TEST_P(PageColours, AreNotAllThatTellsAStatus) {
  WriteCar();
  browser_.SetMedia(GetParam().Scheme, GetParam().Media);
  browser_.Open(page_);
  for (const char* status : {"Locked", "Edit", "ReadOnly", "Unversioned"}) {
    EXPECT_EQ(browser_.Run("[...document.querySelectorAll('td .status')].some(chip => chip.innerText === '" +
                           std::string(status) + "')"),
              true);
  }
  // The marks beside the words differ in shape.
  EXPECT_EQ(browser_.Run("new Set(['.locked', '.edit', '.readonly', '.chip:not(.locked, .edit, .readonly)']"
                         ".map(one => getComputedStyle(document.querySelector('td ' + one), '::before'))"
                         ".map(style => [style.borderRadius, style.transform, "
                         "style.backgroundColor === style.color].join())).size"),
            4);
}

}  // namespace
