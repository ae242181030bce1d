#include "console/ConsoleTest.h"
#include "support/Files.h"

namespace {

using testing::HasSubstr;

class PageFile : public ConsoleTest {
protected:
  // Expects that the call ends with 2, says `error` and leaves no page.
  void ExpectRefused(const std::vector<std::string>& arguments, const std::string& error) const {
    const auto result = Zrkhost(arguments);
    EXPECT_EQ(result.Status, 2);
    EXPECT_EQ(result.Output, "");
    EXPECT_THAT(result.Error, HasSubstr(error));
  }
};

TEST_F(PageFile, HoldsTheTreeAfterTheLastCommand) {
  const auto result = Zrkhost({AxlesSession(), "-c", "tree", "--page", Path("page.html")});
  EXPECT_EQ(result.Status, 0) << result.Error;
  const std::string page = ReadFile(folder_ / "page.html");
  for (const char* name : {"car", "axle.1", "axle.2", "wheel.1"}) {
    EXPECT_THAT(page, HasSubstr("<bdi>" + std::string(name) + "</bdi></th>"));
  }
  EXPECT_THAT(page, HasSubstr("<title>car – who holds what</title>"));
  EXPECT_THAT(page, HasSubstr("5 products"));
}

TEST_F(PageFile, IsWrittenWhenACommandGaveAnotherResult) {
  EXPECT_EQ(Zrkhost({CarSession(), "-c", "edit", "--page", Path("page.html")}).Status, 1);
  EXPECT_THAT(ReadFile(folder_ / "page.html"), HasSubstr("</html>"));
}

TEST_F(PageFile, IsWrittenBesideAReport) {
  const auto report = Report({CarSession(), "-c", "tree", "--page", Path("page.html")});
  EXPECT_EQ(report["products"].size(), 1U);
  EXPECT_THAT(ReadFile(folder_ / "page.html"), HasSubstr("</html>"));
}

TEST_F(PageFile, ThatCannotBeWrittenEndsTheCall) {
  ExpectRefused({CarSession(), "-c", "tree", "--page", Path("no/folder/page.html")},
                "page.html: the page cannot be written");
}

TEST_F(PageFile, IsLeftAloneWhenNothingIsRun) {
  WriteFile(folder_ / "page.html", "earlier");
  ExpectRefused({CarSession(), "-c", "trees", "--page", Path("page.html")}, "trees");
  EXPECT_EQ(ReadFile(folder_ / "page.html"), "earlier");
}

TEST_F(PageFile, IsNotWhatTheCallReads) {
  const auto session = CarSession();
  const auto before = ReadFile(session);
  ExpectRefused({session, "-c", "tree", "--page", Path("./session.json")},
                "session.json: the page would overwrite what the call reads");
  EXPECT_EQ(ReadFile(session), before);
  WriteFile(folder_ / "commands.txt", "tree\n");
  ExpectRefused({session, "--commands", Path("commands.txt"), "--page", Path("commands.txt")},
                "commands.txt: the page would overwrite what the call reads");
}

TEST_F(PageFile, IsNotTheReport) {
  const auto session = CarSession();
  ExpectRefused({session, "-c", "tree", "--report", Path("out"), "--page", Path("./out")},
                "out: the page would overwrite the report");
  WriteFile(folder_ / "out", "earlier");
  ExpectRefused({session, "-c", "tree", "--report", Path("out"), "--page", Path("out")},
                "out: the page would overwrite the report");
  EXPECT_EQ(ReadFile(folder_ / "out"), "earlier");
}

}  // namespace
