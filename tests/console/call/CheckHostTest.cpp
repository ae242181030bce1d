#include "commands/CommandText.h"
#include "console/ConsoleTest.h"
#include "support/Files.h"
#include "support/Platform.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;

using CheckHost = ConsoleTest;

TEST_F(CheckHost, PassesOnAnAssemblyOfItsOwn) {
  const auto result = Zrkhost({"check-host"});
  EXPECT_EQ(result.Status, 0) << result.Output;
  EXPECT_EQ(result.Error, "");
  EXPECT_THAT(result.Output, HasSubstr("holds     CATHandle: a cast asks the object\n"));
  EXPECT_THAT(result.Output, EndsWith("33 checks: 33 hold, 0 fail, 0 not seen\n"));
}

TEST_F(CheckHost, PassesOnAProductOfASession) {
  const auto result = Zrkhost({"check-host", "car/axle.1", "--session", AxlesSession()});
  EXPECT_EQ(result.Status, 0) << result.Output;
}

TEST_F(CheckHost, ListsWhatTheSessionDoesNotShow) {
  const auto result = Zrkhost({"check-host", "--session", CarSession()});
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Output,
              HasSubstr("not seen  CATIProduct: TestReference  needs: a product with children\n"));
  EXPECT_THAT(result.Output, EndsWith("33 checks: 30 hold, 0 fail, 3 not seen\n"));
}

TEST_F(CheckHost, ListsWhatFailsAndWhatWasFound) {
  const auto session = Session(R"({"root": "car", "attributeClass": {"parameters": ["Status", "Comment"]},
      "products": {"car": {"document": "car.CATProduct"}}})");
  const auto result = Zrkhost({"check-host", "--session", session});
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Output,
              HasSubstr("FAILS     ZRKIAttInstance: GetParameter  found: Revision is missing or no "
                        "CATICkeParm; Release is missing or no CATICkeParm\n"));
}

TEST_F(CheckHost, TakesTheFilesOfAFolder) {
  WriteFile(folder_ / "car.CATProduct", "");
  WriteFile(folder_ / "axle.CATPart", "");
  EXPECT_EQ(Zrkhost({"check-host", "--folder", folder_.Path().string()}).Status, 0);
}

TEST_F(CheckHost, RefusesWhatItCannotCarryOut) {
  const auto refused = [this](const std::vector<std::string>& arguments, const std::string& what) {
    const auto result = Zrkhost(arguments);
    EXPECT_EQ(result.Status, 2);
    EXPECT_EQ(result.Output, "");
    EXPECT_THAT(result.Error, HasSubstr(what));
  };
  refused({"check-host", "bus"}, "there is no product \"bus\" in the tree");
  refused({"check-host", "--library", Path("gone.so")}, "gone.so: cannot be loaded as the host check");
  refused({"check-host", "--library", (ExecutableFolder() / "plugins" / "foreign_library.plugin").string()},
          "does not export ZRKCheckHost");
  refused({"check-host", "--session", Path("gone.json")}, "gone.json");
  refused({"check-host", "--verbose"}, "--verbose");
}

TEST_F(CheckHost, IsInTheHelp) {
  EXPECT_THAT(Zrkhost({"--help"}).Output, HasSubstr("zrkhost check-host [PATH]"));
}

TEST_F(CheckHost, PrintsItsHelpAsTheProgramDoes) {
  const auto help = Zrkhost({"check-host", "--help"});
  EXPECT_EQ(help.Status, 0);
  EXPECT_THAT(help.Output, HasSubstr("\nUsage: zrkhost check-host [PATH] [options]\n\nOptions:\n"
                                     "  -h,--help           Print this\n"
                                     "  --session FILE      Session file (JSON)"));
  EXPECT_THAT(help.Output,
              testing::ContainsRegex("\n  --folder DIR        \\w.*\n  --library FILE      \\w"));
  EXPECT_THAT(help.Output, HasSubstr("\nExit status: "));
  for (const auto& line : zrkhost::SplitLines(help.Output)) EXPECT_LE(line.size(), 80u) << line;
  EXPECT_EQ(Zrkhost({"check-host", "-h"}).Output, help.Output);
}

}  // namespace
