#include "console/ConsoleTest.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// What only the stand-in's own functions can show, and texts that are not well-formed.
class ReportOfLaunches : public ConsoleTest {
protected:
  ReportOfLaunches() {
    WriteFile(folder_ / "proj/car.CATProduct", "car");
    WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  }
  std::string CarInProject() const {
    return Session(
        R"({"documents": "proj", "root": "car", "products": {"car": {"document": "car.CATProduct"}}})");
  }
  ScriptedClient client_;
};

TEST_F(ReportOfLaunches, HoldsAllEventsInTheirOrder) {
  const auto report = Report({CarInProject(), "-c", "refresh", "-c", "tree"});
  EXPECT_THAT(EventKinds(CommandOf(report, 0)),
              ElementsAre("launch", "launch", "redraw", "debug", "debug", "debug"));
  EXPECT_THAT(EventKinds(CommandOf(report, 1)), ElementsAre());
  const auto& events = CommandOf(report, 0)["events"];
  EXPECT_EQ(events[2], Json({{"event", "redraw"}, {"product", "car"}}));
  EXPECT_THAT(events[3]["text"], testing::MatchesRegex("\nCVS status check time: [0-9.e+-]+ sec\n"));
}

TEST_F(ReportOfLaunches, GivesTheArgumentsOfALaunchCharacterByCharacter) {
  const auto report = Report({CarInProject(), "-c", "refresh"});
  EXPECT_EQ(CommandOf(report, 0)["events"][0],
            Json({{"event", "launch"},
                  {"program", client_.HostPath("cvs.exe")},
                  {"commandLine", " -d /cvs/root  status -v  \"proj\\car.CATProduct\""},
                  {"folder", folder_.Host() + "\\"},
                  {"started", true}}));
}

TEST_F(ReportOfLaunches, ShowsALaunchThatFailed) {
  const auto report = Report({CarInProject(), "-c", "remove /no/such/folder/a"});
  const auto& events = CommandOf(report, 0)["events"];
  EXPECT_THAT(EventKinds(CommandOf(report, 0)), ElementsAre("launch", "debug", "debug"));
  EXPECT_EQ(events[0]["started"], false);
  EXPECT_EQ(events[0]["folder"], "\\no\\such\\folder");
}

TEST_F(ReportOfLaunches, IsShownOnStandardErrorWithVerbose) {
  const auto result = Zrkhost({CarInProject(), "-c", "refresh", "--verbose"});
  EXPECT_THAT(result.Error,
              HasSubstr("launch: " + client_.HostPath("cvs.exe") + " -d /cvs/root  status -v "));
}

TEST_F(ReportOfLaunches, IsWellFormedWhateverTheClientWrites) {
  client_.When("update").Out("\xff\xfe T\u00fcr\r\n");
  const auto report = Report({CarInProject(), "-c", "edit"}, 1);
  std::string message;
  for (const auto& event : CommandOf(report, 0)["events"]) {
    if (event["event"] == "dialog") message = event["message"];
  }
  EXPECT_EQ(message, "\uFFFD\uFFFD T\u00fcr\r\n");
}

TEST_F(ReportOfLaunches, TakesCommandsAndFilesThatAreNotWellFormed) {
  const auto report = Report({CarInProject(), "-c", "remove " + Path("proj/a\xff")});
  EXPECT_EQ(CommandOf(report, 0)["command"], "remove " + Path("proj/a\uFFFD"));
  EXPECT_THAT(client_.Runs().at(0).Joined(), testing::EndsWith("a\xff"));
}

TEST_F(ReportOfLaunches, MakesASessionOfFilesWhoseNamesAreNotWellFormed) {
  WriteFile(folder_ / "odd/a\xff", "x");
  WriteFile(folder_ / "odd/a\xfe", "x");
  const auto report = Report({"--folder", Path("odd"), "-c", "cvsable \"a\xfe/a\xff\""});
  EXPECT_EQ(CommandOf(report, 0)["result"], 1);
  EXPECT_EQ(report["products"].size(), 2u);
}

TEST_F(ReportOfLaunches, SaysThatItCouldNotBeWrittenInTheEnd) {
  const auto result = Zrkhost({CarInProject(), "-c", "tree", "--report", "/dev/full"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Error, HasSubstr("/dev/full"));
}

}  // namespace
