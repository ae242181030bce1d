// What the commands of one call leave to those behind them, and to the page.

#include "console/ConsoleTest.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

std::string StatusBlock(const std::string& file, const std::string& revision) {
  return "===================================================================\r\nFile: " + file +
         " \tStatus: Up-to-date\r\n\r\n   Working revision:\t" + revision + "\r\n   Repository revision:\t" +
         revision + "\t/cvs/root/proj/" + file + ",v\r\n\r\n";
}

// A car with two axles of a wheel each, all in one CVS working copy.
class SharedSession : public ConsoleTest {
protected:
  SharedSession() {
    for (const char* file : {"car", "axle", "wheel"}) WriteFile(folder_ / "proj" / file, file);
    WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  }

  void ReportRevisions() {
    client_.When("status -v")
        .Out(StatusBlock("car", "1.3") + StatusBlock("axle", "1.7") + StatusBlock("wheel", "4.21"));
  }

  std::string Car() const {
    return Session(R"({"documents": "proj", "root": "car", "products": {
        "car": {"document": "car", "attributes": {"Status": "Edit"},
                "children": [{"name": "a", "reference": "axle"}, {"name": "b", "reference": "axle"}]},
        "axle": {"document": "axle", "children": [{"name": "w", "reference": "wheel"}]},
        "wheel": {"document": "wheel"}}})");
  }

  ScriptedClient client_;
};

TEST_F(SharedSession, RemembersTheWorkingCopyFromCommandToCommand) {
  client_.When("status -v").Remove("proj/CVS/Root").Once();
  Zrkhost({Car(), "-c", "refresh", "-c", "refresh"});
  EXPECT_THAT(client_.Runs(), SizeIs(4));
  client_.ClearRuns();
  Zrkhost({Car(), "-c", "refresh"});
  EXPECT_THAT(client_.Runs(), IsEmpty());
}

TEST_F(SharedSession, KeepsTheTimeOfTheRootsManagerUntilItIsPrinted) {
  // More than any machine reads within a millisecond.
  client_.When("-n edit").Repeat(200'000, std::string(100, 'x') + "\r\n");
  const auto printed = [this](const std::string& refresh) {
    const auto report = Report({Car(), "-c", refresh, "-c", "commtime", "-c", "commtime"});
    return std::vector<std::string>{CommandOf(report, 1)["output"], CommandOf(report, 2)["output"]};
  };
  const std::string none = " Total CVS Comm Time: 0\n";
  EXPECT_THAT(printed("refresh"), ElementsAre(Not(none), none));
  EXPECT_THAT(printed("refresh car/a"), ElementsAre(none, none));
}

TEST_F(SharedSession, HasAProductOfItsOwnForEachPlace) {
  ReportRevisions();
  const auto report = Report({Car(), "-c", "refresh car/a/w"});
  ASSERT_THAT(report["products"], SizeIs(5));
  EXPECT_EQ(report["products"][2]["path"], "car/a/w");
  EXPECT_EQ(report["products"][2]["attributes"]["Revision"], "4.21");
  EXPECT_EQ(report["products"][4]["path"], "car/b/w");
  EXPECT_EQ(report["products"][4]["attributes"], nullptr);
}

TEST_F(SharedSession, PrintsTheWholeTreeBehindTheRefreshOfAPart) {
  ReportRevisions();
  EXPECT_EQ(Zrkhost({Car(), "-c", "refresh car/a/w"}).Output,
            "Product  Revision  Status  Release  Comment\n"
            "car                Edit\n"
            "  a\n"
            "    w    4.21      Edit\n"
            "  b\n"
            "    w\n");
}

TEST_F(SharedSession, IsOnThePageAsTheLastCommandLeftIt) {
  ReportRevisions();
  const auto result = Zrkhost({Car(), "-c", "refresh", "-c", "quit", "--page", Path("page.html")});
  EXPECT_EQ(result.Status, 0) << result.Error;
  EXPECT_THAT(ReadFile(folder_ / "page.html"), HasSubstr("4.21"));
}

TEST_F(SharedSession, AnswersEveryQuestionAsTheCallSays) {
  client_.When("unedit").Out("car has been modified; revert changes? ").Read();
  ReportRevisions();
  const auto report = Report({Car(), "--answer", "yes", "-c", "unedit", "-c", "unedit"});
  for (std::size_t i = 0; i < 2; ++i) {
    std::vector<int> answers;
    for (const auto& event : CommandOf(report, i)["events"]) {
      if (event["event"] == "dialog") answers.push_back(event["answer"]);
    }
    EXPECT_THAT(answers, ElementsAre(3)) << i;
  }
}

// A refresh takes the attributes of what cannot be linked, and leaves those of what has no document.
TEST_F(SharedSession, KnowsAProductWithoutADocumentFromOneThatIsNotLinkable) {
  const auto report = Report({Session(R"({"documents": "proj", "root": "car", "products": {
      "car": {"document": "car",
              "children": [{"name": "bare", "reference": "bare", "attributes": {"Status": "Edit"}},
                           {"name": "plain", "reference": "plain", "attributes": {"Status": "Edit"}}]},
      "bare": {}, "plain": {"linkable": false}}})"),
                              "-c", "refresh"});
  EXPECT_NE(report["products"][1]["attributes"], nullptr);
  EXPECT_EQ(report["products"][2]["attributes"], nullptr);
}

}  // namespace
