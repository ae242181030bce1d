#include <unistd.h>

#include "console/ConsoleTest.h"
#include "support/Files.h"

namespace {

using testing::HasSubstr;

// Calls with files and folders that only this system has.
class CallOnPosix : public ConsoleTest {
protected:
  static void ExpectRefused(const ProgramResult& result, const std::string& what) {
    EXPECT_EQ(result.Status, 2);
    EXPECT_THAT(result.Error, HasSubstr(what));
    EXPECT_EQ(result.Output, "");
  }
};

// A file that can be opened, but not read where it begins.
constexpr const char* kUnreadable = "/proc/self/mem";

TEST_F(CallOnPosix, NamesAFileOfWhichReadingFails) {
  ExpectRefused(Zrkhost({kUnreadable, "-c", "tree"}), "/proc/self/mem: cannot be read");
  ExpectRefused(Zrkhost({CarSession(), "-c", "tree", "--commands", kUnreadable}),
                "/proc/self/mem: cannot be read");
}

TEST_F(CallOnPosix, SaysThatReadingStandardInputFails) {
  for (const char* arguments : {"", "-c tree --commands -"}) {
    const auto script = Program().string() + " '" + CarSession() + "' " + arguments + " <'" + Path("") + "'";
    ExpectRefused(RunProgram("/bin/sh", {"-c", script}), "standard input: cannot be read");
  }
}

TEST_F(CallOnPosix, TakesAnEmptyFileOfCommands) {
  EXPECT_EQ(Zrkhost({CarSession(), "--commands", "/dev/null"}).Status, 0);
}

TEST_F(CallOnPosix, RefusesAClientsFolderThatPATHWouldSplit) {
  std::filesystem::create_directory(folder_ / "cl:x");
  ExpectRefused(Zrkhost({CarSession(), "--clients", Path("cl:x"), "-c", "tree"}),
                "cl:x: cannot be put into PATH: its name holds the separator of folders");
}

TEST_F(CallOnPosix, RefusesAReportBehindALinkToTheSession) {
  const auto session = CarSession();
  std::filesystem::create_symlink(session, folder_ / "link.json");
  ExpectRefused(Zrkhost({session, "-c", "tree", "--report", Path("link.json")}),
                "link.json: the report would overwrite");
}

TEST_F(CallOnPosix, RefusesAReportOrPageInPlaceOfItsStandardInput) {
  WriteFile(folder_ / "f", "tree\n");
  std::filesystem::create_hard_link(folder_ / "f", folder_ / "other");
  std::filesystem::create_directory_symlink(folder_.Path(), folder_ / "link");
  const auto call = "cd '" + Path("") + "' && exec " + Program().string() + " '" + CarSession() + "' ";
  for (const char* rest :
       {"--page f <f", "--report f <f", "--page link/f <f", "--page other <f", "--page /dev/stdin <f",
        "--page f --commands - <f", "--page f --commands - -c tree <f", "--page f --commands /dev/stdin <f",
        "--report f --commands /dev/stdin <other"}) {
    const auto result = RunProgram("/bin/sh", {"-c", call + rest});
    EXPECT_EQ(result.Status, 2) << rest;
    EXPECT_THAT(result.Error, HasSubstr("would overwrite what the call reads")) << rest;
    EXPECT_EQ(result.Output, "") << rest;
    EXPECT_EQ(ReadFile(folder_ / "f"), "tree\n") << rest;
  }
}

TEST_F(CallOnPosix, RefusesAReportOrPageInPlaceOfItsStandardOutput) {
  const auto call = "exec " + Program().string() + " '" + CarSession() + "' -c tree ";
  for (const char* rest : {"--report /dev/stdout", "--page /dev/stdout", "--page out"}) {
    const auto result = RunProgram("/bin/sh", {"-c", "cd '" + Path("") + "' && " + call + rest + " >out"});
    EXPECT_EQ(result.Status, 2) << rest;
    EXPECT_THAT(result.Error, HasSubstr("would overwrite standard output")) << rest;
  }
}

TEST_F(CallOnPosix, WritesAReportAndAPageBehindItsOutputIntoAPipe) {
  const auto call = Program().string() + " '" + CarSession() + "' -c commtime -c tree";
  const auto result = RunProgram("/bin/sh", {"-c", call + " --report /dev/stdout --page /dev/fd/1 | cat"});
  const auto report = result.Output.find("\n{\n  \"commands\": [");
  ASSERT_NE(report, std::string::npos) << result.Output;
  EXPECT_LT(result.Output.find("Product"), report);
  EXPECT_GT(result.Output.find("<!DOCTYPE html>"), report);
}

TEST_F(CallOnPosix, NamesAFolderThatCannotBeRead) {
  WriteFile(folder_ / "wc/a.CATProduct", "");
  std::filesystem::create_directories(folder_ / "wc/closed");
  std::filesystem::permissions(folder_ / "wc/closed", std::filesystem::perms::none);
  std::vector<std::string> call{Program().string(), "--folder", Path("wc"), "-c", "tree"};
  // The modes of files hold for the administrator only without these.
  const std::string without = "-dac_override,-dac_read_search";
  if (geteuid() == 0)
    call.insert(call.begin(), {"setpriv", "--bounding-set", without, "--inh-caps", without});
  ExpectRefused(RunProgram("/usr/bin/env", call), Path("wc/closed") + ": cannot be read: Permission denied");
  std::filesystem::permissions(folder_ / "wc/closed", std::filesystem::perms::owner_all);
}

TEST_F(CallOnPosix, TakesAPageInPlaceOfAStandardInputThatItDoesNotRead) {
  WriteFile(folder_ / "f", "earlier");
  const auto script =
      Program().string() + " '" + CarSession() + "' -c tree --page '" + Path("f") + "' <'" + Path("f") + "'";
  EXPECT_EQ(RunProgram("/bin/sh", {"-c", script}).Status, 0);
  EXPECT_THAT(ReadFile(folder_ / "f"), HasSubstr("</html>"));
}

TEST_F(CallOnPosix, TakesADeviceForBothCommandsAndReport) {
  EXPECT_EQ(Zrkhost({CarSession(), "--commands", "/dev/null", "--report", "/dev/null"}).Status, 0);
}

TEST_F(CallOnPosix, RefusesAFolderWithANameThatTheHostWouldSplit) {
  WriteFile(folder_ / "wc/a\\b", "x");
  ExpectRefused(Zrkhost({"--folder", Path("wc"), "-c", "tree"}), "wc/a\\b: the host would take the \"\\\"");
  WriteFile(folder_ / "c\\d/a", "x");
  ExpectRefused(Zrkhost({"--folder", Path("c\\d"), "-c", "tree"}), "c\\d/a: the host would take the \"\\\"");
}

}  // namespace
