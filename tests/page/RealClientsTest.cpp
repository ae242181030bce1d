#include "CVSWorkingCopies.h"
#include "SVNWorkingCopies.h"
#include "ShownPage.h"

// Pages that zrkhost made of working copies of the real clients.

namespace {

using testing::IsSupersetOf;

const std::map<std::string, std::string> kFiles = {{"car.CATProduct", "car\n"},
                                                   {"Türen/Tür links.CATPart", "door\n"},
                                                   {"Türen/Tür rechts.CATPart", "door\n"},
                                                   {"motor/motor.CATProduct", "motor\n"},
                                                   {"motor/shaft & rod.CATPart", "shaft\n"}};
const char* const kLeft = "Türen/Tür links.CATPart";
const char* const kRight = "Türen/Tür rechts.CATPart";

std::string SessionOn(const TemporaryFolder& folder, const std::filesystem::path& copy) {
  const Json session = {{"documents", copy.string()},
                        {"root", "car"},
                        {"products",
                         {{"car",
                           {{"document", "car.CATProduct"},
                            {"children",
                             {{{"name", "Tür links.1"}, {"reference", "kLeft"}},
                              {{"name", "Tür rechts.1"}, {"reference", "kRight"}},
                              {{"name", "motor.1"}, {"reference", "motor"}},
                              {{"name", "screw.1"}, {"reference", "screw"}}}}}},
                          {"kLeft", {{"document", kLeft}}},
                          {"kRight", {{"document", kRight}}},
                          {"motor",
                           {{"document", "motor/motor.CATProduct"},
                            {"children", {{{"name", "shaft.1"}, {"reference", "shaft"}}}}}},
                          {"shaft", {{"document", "motor/shaft & rod.CATPart"}}},
                          {"screw", Json::object()}}}};
  WriteFile(folder / "session.json", session.dump());
  return (folder / "session.json").string();
}

std::vector<std::string> StatusesOf(const Json& report) {
  std::vector<std::string> statuses;
  for (const Json& row : RowsOf(report)) statuses.push_back(row.at("cells").at(2));
  return statuses;
}

// Expects that the page shows what the report holds, whole and filtered, and that these hold the files.
void ExpectPageOf(const Json& report, const std::filesystem::path& page, const Json& holders) {
  ASSERT_THAT(StatusesOf(report), IsSupersetOf({"Locked", "Edit", "ReadOnly", ""}));
  Browser& browser = SharedBrowser();
  browser.Open(page);
  EXPECT_EQ(RowsShown(browser), RowsOf(report));
  EXPECT_EQ(CountsShown(browser), CountsOf(report));
  EXPECT_EQ(HoldersShown(browser), holders);
  browser.Open(page, "status=Locked");
  EXPECT_EQ(OnlyShown(RowsShown(browser)),
            RowsThatFit(report, [](const Json& cells) { return cells.at(2) == "Locked"; }));
  browser.Open(page, "q=shaft");
  EXPECT_EQ(OnlyShown(RowsShown(browser)),
            RowsThatFit(report, [](const Json& cells) { return cells.at(0) == "shaft.1"; }));
}

using RealClientsOfCVS = CVSWorkingCopies;
INSTANTIATE_TEST_SUITE_P(Of, RealClientsOfCVS, testing::Values(""),
                         [](const auto&) { return "AWorkingCopy"; });

TEST_P(RealClientsOfCVS, ShowsWhatTheReportHolds) {
  CheckOut(kFiles);
  CheckOutForBen();
  BenEdits(kLeft);
  const std::string page = folder_ / "page.html";
  const Json report =
      anna_.Host({SessionOn(folder_, annasCopy_), "-c", "refresh", "-c", "edit car/motor.1", "--page", page});
  ExpectPageOf(report, page,
               {{{"owner", "This working copy"}, {"files", Json::array({"motor.CATProduct: Edit"})}},
                {{"owner", ben_.Name()}, {"files", Json::array({"Tür links.CATPart: Locked"})}}});
}

using RealClientsOfSVN = SVNWorkingCopies;

TEST_F(RealClientsOfSVN, ShowsWhatTheReportHolds) {
  CheckOut(kFiles);
  repository_.Lock(bensCopy_ / kLeft, "ben", "it sticks,\n<soon> & often");
  repository_.Lock(bensCopy_ / kRight, "ben");
  const std::string page = folder_ / "page.html";
  const Json report =
      anna_.Host({SessionOn(folder_, annasCopy_), "-c", "refresh", "-c", "edit car/motor.1", "--page", page});
  ExpectPageOf(report, page,
               {{{"owner", "anna"}, {"files", Json::array({"motor.CATProduct: Edit"})}},
                {{"owner", "ben"},
                 {"files", Json::array({"Tür links.CATPart: Locked", "Tür rechts.CATPart: Locked"})}}});
}

}  // namespace
