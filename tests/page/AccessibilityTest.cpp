#include "ShownPage.h"

namespace {

using testing::Contains;
using testing::ElementsAre;

// What the browser tells a screen reader.
class PageAccessibility : public PageTest {
protected:
  void Open(const std::string& fragment = "") {
    WriteCar();
    browser_.Open(page_, fragment);
    nodes_ = browser_.AccessibilityNodes();
  }

  static std::string Role(const Json& node) { return node.at("role").value("value", ""); }
  static std::string Name(const Json& node) {
    return node.contains("name") ? node.at("name").value("value", "") : "";
  }
  static Json Property(const Json& node, const std::string& name) {
    for (const Json& property : node.value("properties", Json::array())) {
      if (property.at("name") == name) return property.at("value").at("value");
    }
    return nullptr;
  }
  std::vector<Json> WithRole(const std::string& role) const {
    std::vector<Json> found;
    for (const Json& node : nodes_) {
      if (Role(node) == role) found.push_back(node);
    }
    return found;
  }
  std::vector<std::string> Names(const std::string& role) const {
    std::vector<std::string> names;
    for (const Json& node : WithRole(role)) names.push_back(Name(node));
    return names;
  }
  // The roles of what stands in the node.
  std::vector<std::string> Below(const Json& node) const {
    std::vector<std::string> roles;
    for (const Json& child : node.at("childIds")) {
      for (const Json& other : nodes_) {
        if (other.at("nodeId") == child) roles.push_back(Role(other));
      }
    }
    return roles;
  }

  Json nodes_;
};

TEST_F(PageAccessibility, TellsATreeGridWithLevels) {
  Open();
  EXPECT_THAT(Names("treegrid"), ElementsAre("Product tree"));
  EXPECT_THAT(Names("columnheader"), ElementsAre("Product", "Revision", "Status", "Release", "Comment"));
  EXPECT_THAT(Names("rowheader"), ElementsAre("car", "body.1", "hood.1", "screw.1", "axle.1", "wheel.1",
                                              "tyre.1", "axle.2", "wheel.1", "tyre.1"));
  Json levels = Json::array();
  Json expanded = Json::array();
  for (const Json& row : WithRole("row")) {
    levels.push_back(Property(row, "level"));
    expanded.push_back(Property(row, "expanded"));
  }
  // The first row is that of the headers.
  EXPECT_EQ(levels, Json({nullptr, 1, 2, 3, 3, 2, 3, 4, 2, 3, 4}));
  EXPECT_EQ(expanded,
            Json({nullptr, true, true, nullptr, nullptr, true, true, nullptr, true, true, nullptr}));
}

TEST_F(PageAccessibility, TellsEveryCellOfARow) {
  Open();
  EXPECT_THAT(Below(WithRole("row").at(3)),
              ElementsAre("rowheader", "gridcell", "gridcell", "gridcell", "gridcell"));
  EXPECT_THAT(Names("gridcell"), Contains("Locked"));
}

TEST_F(PageAccessibility, TellsThePlaceOfARowAmongItsSiblings) {
  Open();
  EXPECT_EQ(browser_.Run("[...document.querySelectorAll('tbody > tr')].map(row => "
                         "[row.ariaPosInSet, row.ariaSetSize].join(' of '))"),
            Json({"1 of 1", "1 of 3", "1 of 2", "2 of 2", "2 of 3", "1 of 1", "1 of 1", "3 of 3", "1 of 1",
                  "1 of 1"}));
}

TEST_F(PageAccessibility, TellsWhichFilterIsOn) {
  Open("status=Locked");
  Json pressed = Json::object();
  for (const Json& node : WithRole("button")) {
    if (!Property(node, "pressed").is_null()) pressed[Name(node)] = Property(node, "pressed");
  }
  EXPECT_EQ(pressed, Json({{"10 All", "false"},
                           {"3 Locked", "true"},
                           {"1 Edit", "false"},
                           {"3 ReadOnly", "false"},
                           {"2 Unversioned", "false"},
                           {"1 No status", "false"}}));
  EXPECT_THAT(Names("searchbox"), ElementsAre("Search all columns"));
  EXPECT_THAT(Names("rowheader"),
              ElementsAre("car", "body.1", "hood.1", "axle.1", "wheel.1", "axle.2", "wheel.1"));
}

TEST_F(PageAccessibility, TellsRowsThatAreNotInView) {
  Json children = Json::array();
  for (int i = 1; i < 1'500; ++i) children.push_back({{"name", std::to_string(i)}, {"reference", "part"}});
  Write({{"root", "car"}, {"products", {{"car", {{"children", children}}}, {"part", Json::object()}}}});
  browser_.Open(page_);
  nodes_ = browser_.AccessibilityNodes();
  const std::vector<std::string> names = Names("row");
  ASSERT_EQ(names.size(), 1'501U);
  EXPECT_EQ(names[1], "car");
  EXPECT_EQ(names[1'500], "1499");
  EXPECT_EQ(Property(WithRole("row").at(1'500), "level"), 2);
}

TEST_F(PageAccessibility, TellsTheLandmarks) {
  Open();
  EXPECT_THAT(Names("complementary"), ElementsAre("Who holds what"));
  EXPECT_THAT(WithRole("main"), testing::SizeIs(1));
  EXPECT_THAT(Names("heading"), Contains("car"));
}

}  // namespace
