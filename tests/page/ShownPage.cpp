#include "ShownPage.h"

#include <algorithm>
#include <map>

Browser& SharedBrowser() {
  static Browser browser;
  return browser;
}

Json RowsShown(Browser& browser) {
  return browser.Run(
      "[...document.querySelectorAll('tbody > tr')].map(row => ({level: Number(row.ariaLevel),"
      "cells: [...row.cells].map(cell => cell.textContent), shown: row.checkVisibility()}))");
}

Json RowsOf(const Json& report) {
  Json rows = Json::array();
  for (const Json& product : report.at("products")) {
    const std::string path = product.at("path");
    Json cells = {path.substr(path.rfind('/') + 1)};
    const Json& attributes = product.at("attributes");
    for (const char* name : {"Revision", "Status", "Release", "Comment"}) {
      cells.push_back(attributes.is_null() ? Json("") : attributes.at(name));
    }
    rows.push_back(
        {{"level", 1 + std::count(path.begin(), path.end(), '/')}, {"cells", cells}, {"shown", true}});
  }
  return rows;
}

Json OnlyShown(const Json& rows) {
  Json shown = Json::array();
  for (const Json& row : rows) {
    if (row.at("shown")) shown.push_back(row);
  }
  return shown;
}

Json CountsShown(Browser& browser) {
  return browser.Run(
      "[...document.querySelectorAll('[aria-pressed]')].map(button => ({products: "
      "Number(button.querySelector('b').textContent), status: "
      "button.textContent.replace(/^[0-9]+ /, '')}))");
}

Json CountsOf(const Json& report) {
  std::map<std::string, int> counts;
  for (const Json& row : RowsOf(report)) ++counts[row.at("cells").at(2)];
  Json all = Json::array();
  all.push_back({{"status", "All"}, {"products", report.at("products").size()}});
  for (const char* status : {"Locked", "Edit", "ReadOnly", ""}) {
    if (counts[status] > 0)
      all.push_back({{"status", *status ? status : "No status"}, {"products", counts[status]}});
  }
  return all;
}

Json HoldersShown(Browser& browser) {
  return browser.Run(
      "[...document.querySelectorAll('aside h3')].map(head => ({owner: head.firstChild.textContent,"
      "files: [...head.nextElementSibling.children].map(item => "
      "item.querySelector('a').textContent + ': ' + item.querySelector('.status').textContent)}))");
}

Json PageTest::WriteCar() const {
  const auto child = [](const char* name, const char* reference, const char* status, const char* comment) {
    return Json{{"name", name},
                {"reference", reference},
                {"attributes", {{"Revision", "1.4"}, {"Status", status}, {"Comment", comment}}}};
  };
  return Write(
      {{"root", "car"},
       {"products",
        {{"car",
          {{"document", "car.CATProduct"},
           {"attributes", {{"Revision", "1.7"}, {"Status", "ReadOnly"}}},
           {"children",
            {child("body.1", "body", "ReadOnly", ""), child("axle.1", "axle", "Edit", ""),
             child("axle.2", "axle", "ReadOnly", "a second\nhood ornament")}}}},
         {"body",
          {{"document", "body.CATProduct"},
           {"children",
            {child("hood.1", "hood", "Locked", "hood.CATPart\nben\nSat Nov 21\nvault\n/home/ben"),
             {{"name", "screw.1"}, {"reference", "screw"}}}}}},
         {"axle",
          {{"document", "axle.CATPart"},
           {"children",
            {child("wheel.1", "wheel", "Locked", "Locked by: \nchlo\u00e9\n-------------\nrim")}}}},
         {"wheel",
          {{"document", "wheel.CATPart"}, {"children", {child("tyre.1", "tyre", "Unversioned", "")}}}},
         {"tyre", {{"document", "tyre.CATPart"}}},
         {"hood", {{"document", "hood.CATPart"}}},
         {"screw", Json::object()}}}});
}

void PageTest::ExpectShown(const std::vector<std::string>& products) {
  std::vector<std::string> shown;
  for (const Json& row : OnlyShown(RowsShown(browser_))) shown.push_back(row.at("cells").at(0));
  EXPECT_EQ(shown, products);
}
