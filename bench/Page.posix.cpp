// The page of a large product tree: its size, and what the browser needs to show it and to filter it.

#include "page/Page.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <stdexcept>
#include <string>
#include <vector>

#include "Measurement.h"
#include "page/Browser.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

constexpr std::size_t kProductsOfPage = 10'000;

// A root, assemblies of 99 parts each, with attributes as CVS gives them: every tenth product is locked.
std::vector<zrkhost::ProductRecord> MakeProducts() {
  std::vector<zrkhost::ProductRecord> products;
  for (std::size_t i = 0; i < kProductsOfPage; ++i) {
    const std::string number = std::to_string(i);
    const std::string file = "Roadster/folder " + std::to_string(i / 100) + "/part" + number + ".CATPart";
    zrkhost::ProductRecord& product = products.emplace_back();
    product.Depth = i == 0 ? 0 : i % 100 == 1 ? 1 : 2;
    product.Name = "part" + number + ".1";
    product.Path = "Roadster/assembly/" + product.Name;
    product.Document = "\\home\\anna\\" + file;
    const bool locked = i % 10 == 5;
    product.Attributes = {
        {"Revision", "1." + std::to_string(i % 40)},
        {"Status", locked ? "Locked" : "ReadOnly"},
        {"Release", "RELEASE-1 (revision: 1.4)"},
        {"Comment", locked ? file + "\nben\nSat Nov 21 10:12:00 2026 GMT\nvault\n/home/ben/Roadster" : ""}};
  }
  return products;
}

// Seconds until the browser has drawn the page that it was told to load, by its own clock.
double SecondsToReady(Browser& browser, const std::filesystem::path& page) {
  browser.Open(page);
  const double milliseconds = browser.Run(
      "new Promise(done => requestAnimationFrame(() => requestAnimationFrame(() => "
      "done(performance.now()))))");
  return milliseconds / 1000;
}

// Seconds from a text in the search field until the rows that fit are drawn.
double SecondsToFilter(Browser& browser, const std::string& text, int rows) {
  const auto result = browser.Run(
      "new Promise(done => { const start = performance.now(); const field = document.querySelector('input');"
      "field.value = '" +
      text +
      "'; field.dispatchEvent(new InputEvent('input'));"
      "requestAnimationFrame(() => requestAnimationFrame(() => done([performance.now() - start, "
      "document.querySelectorAll('tbody > tr:not([hidden])').length]))); })");
  if (result.at(1) != rows) throw std::runtime_error("the filter shows " + result.at(1).dump() + " rows");
  return result.at(0).get<double>() / 1000;
}

std::string Milliseconds(double seconds) {
  return std::to_string(std::lround(seconds * 1000)) + " ms";
}

}  // namespace

Measurements MeasurePage() {
  constexpr int kRounds = 5;
  const auto products = MakeProducts();
  std::string page;
  double writing = 1e9;
  double ready = 1e9;
  double bare = 1e9;
  double few = 1e9;
  double most = 1e9;
  const TemporaryFolder folder;
  Browser browser;
  for (int round = 0; round < kRounds; ++round) {
    writing = std::min(writing, Seconds([&] {
                         page = zrkhost::PageOf(products, {"Revision", "Status", "Release", "Comment"},
                                                std::chrono::system_clock::now());
                       }));
    WriteFile(folder / "page.html", page);
    WriteFile(folder / "bare.html", page.substr(0, page.find("<script type=\"module\">")) + "</body></html>");
    bare = std::min(bare, SecondsToReady(browser, folder / "bare.html"));
    ready = std::min(ready, SecondsToReady(browser, folder / "page.html"));
    few = std::min(few, SecondsToFilter(browser, "part4711.", 3));
    most = std::min(most, SecondsToFilter(browser, "release", kProductsOfPage));
  }
  const auto perProduct = [](double value) { return value / static_cast<double>(kProductsOfPage); };
  return {{"Page of 10,000 products: size",
           perProduct(static_cast<double>(page.size())),
           "bytes/product",
           {},
           ""},
          {"Writing it", perProduct(writing * 1e6), "us/product", {}, ""},
          {"From load to ready in the browser",
           ready * 1000,
           "ms",
           {},
           "without its script " + Milliseconds(bare)},
          {"Filtering it down to one product", few * 1000, "ms", {}, "back to all " + Milliseconds(most)}};
}
