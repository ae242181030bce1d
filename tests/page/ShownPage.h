#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "Browser.h"
#include "User.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

// What a page shows in the browser, and what it should show by the report of the same call. Rows are
// {"level", "cells", "shown"}, counts {"status", "products"}, holders {"owner", "files": ["file: status"]}.

Json RowsShown(Browser& browser);
Json RowsOf(const Json& report);
// Of those rows, the ones that are shown.
Json OnlyShown(const Json& rows);
// The rows of the report that fit, which takes a row's cells, and those above them.
template <class Fits>
Json RowsThatFit(const Json& report, Fits fits);

Json CountsShown(Browser& browser);
Json CountsOf(const Json& report);

Json HoldersShown(Browser& browser);

// One for all tests of the program, as it takes its time to start; every page gets a tab of its own.
Browser& SharedBrowser();

// Pages of a product structure that starts with its attributes.
class PageTest : public testing::Test {
protected:
  PageTest() {
    browser_.SetMedia("light");
    browser_.AllowScripts(true);
  }

  // Writes the page of a session and gives the report of the same call.
  Json Write(const Json& session) const {
    WriteFile(folder_ / "session.json", session.dump());
    return user_.Host({(folder_ / "session.json").string(), "--page", page_.string()});
  }
  // A car of four levels with every status, and some product without one.
  Json WriteCar() const;

  // Expects that the browser shows the rows of these products, and no other.
  void ExpectShown(const std::vector<std::string>& products);
  // The name of the product whose row has the focus; empty when none has it.
  std::string Focused() {
    return browser_.Run("document.activeElement.closest('tbody > tr')?.cells[0].textContent ?? ''");
  }

  TemporaryFolder folder_;
  const std::filesystem::path page_ = folder_ / "a page #1.html";
  const User user_{"anna", folder_ / "home"};
  Browser& browser_ = SharedBrowser();
};

template <class Fits>
Json RowsThatFit(const Json& report, Fits fits) {
  Json rows = RowsOf(report);
  // Those above the row that is looked at, and that row.
  std::vector<Json*> line;
  for (Json& row : rows) {
    row["shown"] = false;
    while (!line.empty() && line.back()->at("level") >= row.at("level")) line.pop_back();
    line.push_back(&row);
    if (!fits(row.at("cells"))) continue;
    for (Json* one : line) (*one)["shown"] = true;
  }
  return OnlyShown(rows);
}
