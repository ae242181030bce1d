#include "support/ScriptedClient.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <thread>

#include "support/Command.h"
#include "support/Files.h"

namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;

CommandResult RunClient(std::vector<std::string> arguments, const CommandOptions& options = {}) {
  arguments.insert(arguments.begin(), "cvs.exe");
  return RunCommand(arguments, options);
}

TEST(ScriptedClient, DoesNothingWithoutARule) {
  const ScriptedClient client;
  const CommandResult result = RunClient({"status"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "");
}

TEST(ScriptedClient, RecordsEveryRun) {
  const ScriptedClient client;
  const TemporaryFolder folder;
  EXPECT_THAT(client.Runs(), IsEmpty());
  RunClient({"", "a b", "\\c\td\n", "ä"}, {.Folder = folder.Path(), .Input = "", .Environment = {}});
  RunCommand({"svn.exe"});
  const std::vector<ClientRun> runs = client.Runs();
  ASSERT_THAT(runs, SizeIs(2));
  EXPECT_EQ(runs[0].Program, "cvs.exe");
  EXPECT_EQ(runs[0].Folder, folder.Host());
  EXPECT_THAT(runs[0].Arguments, ElementsAre("", "a b", "\\c\td\n", "ä"));
  EXPECT_EQ(runs[1].Program, "svn.exe");
  EXPECT_THAT(runs[1].Arguments, IsEmpty());
}

TEST(ScriptedClient, ForgetsRunsAndRulesWhenAsked) {
  ScriptedClient client;
  client.Otherwise().Out("x").Once();
  EXPECT_EQ(RunClient({}).Output, "x");
  client.ClearRuns();
  client.ClearRules();
  EXPECT_THAT(client.Runs(), IsEmpty());
  EXPECT_EQ(RunClient({}).Output, "");
  client.Otherwise().Out("y").Once();
  EXPECT_EQ(RunClient({}).Output, "y");
}

TEST(ScriptedClient, PlaysTheFirstRuleThatFits) {
  ScriptedClient client;
  client.When("status -v").Out("first");
  client.When("status").Program("svn.exe").Out("svn");
  client.When("status").Out("second").Exit(3);
  client.Otherwise().Out("last");
  EXPECT_EQ(RunClient({"status", "-v", "x"}).Output, "first");
  EXPECT_EQ(RunClient({"status"}).Output, "second");
  EXPECT_EQ(RunClient({"status"}).Status, 3);
  EXPECT_EQ(RunCommand({"svn.exe", "status"}).Output, "svn");
  EXPECT_EQ(RunClient({"edit"}).Output, "last");
}

TEST(ScriptedClient, PlaysARuleOnce) {
  ScriptedClient client;
  client.Otherwise().Once().Out("1");
  client.Otherwise().Once().Out("2");
  EXPECT_EQ(RunClient({}).Output, "1");
  EXPECT_EQ(RunClient({}).Output, "2");
  EXPECT_EQ(RunClient({}).Output, "");
}

TEST(ScriptedClient, WritesEveryByte) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  ScriptedClient client;
  client.When("out").Out(bytes);
  client.When("err").Error(bytes);
  client.When("repeat").Repeat(3, bytes);
  EXPECT_TRUE(RunClient({"out"}).Output == bytes);
  EXPECT_TRUE(RunClient({"err"}).Output == bytes);
  EXPECT_TRUE(RunClient({"repeat"}).Output == bytes + bytes + bytes);
}

TEST(ScriptedClient, RepeatsAsOftenAsItIsTold) {
  constexpr std::size_t count = 2'000'003;
  ScriptedClient client;
  client.Otherwise().Repeat(count, "abcde").Out(".");
  const std::string output = RunClient({}).Output;
  ASSERT_EQ(output.size(), count * 5 + 1);
  EXPECT_EQ(output.substr(output.size() - 11), "abcdeabcde.");
}

TEST(ScriptedClient, KeepsTheOrderOfItsStreams) {
  ScriptedClient client;
  client.Otherwise().Out("1").Error("2").Out("3");
  EXPECT_EQ(RunClient({}).Output, "123");
}

TEST(ScriptedClient, WritesAFilesBytes) {
  const TemporaryFolder folder;
  WriteFile(folder / "a b", std::string("x\0\r\n", 4));
  ScriptedClient client;
  client.Otherwise().File(folder / "a b");
  EXPECT_EQ(RunClient({}).Output, std::string("x\0\r\n", 4));
}

TEST(ScriptedClient, RecordsWhatItReads) {
  ScriptedClient client;
  client.When("one").Read();
  client.When("two").Read().Read();
  client.When("all").ReadAll();
  const CommandOptions options = {.Folder = {}, .Input = std::string("no\0yes\nx", 8), .Environment = {}};
  RunClient({"one"}, options);
  RunClient({"two"}, options);
  RunClient({"all"}, options);
  EXPECT_THAT(client.Runs(), ElementsAre(Field(&ClientRun::Input, std::string("no\0", 3)),
                                         Field(&ClientRun::Input, std::string("no\0yes\n", 7)),
                                         Field(&ClientRun::Input, options.Input)));
}

TEST(ScriptedClient, ChangesFiles) {
  const TemporaryFolder folder;
  WriteFile(folder / "a b", "old");
  WriteFile(folder / "gone", "");
  ScriptedClient client;
  client.When("store").Store("a b", "x y\n").Remove("gone");
  client.When("lock").MakeReadOnly("a b");
  client.When("edit").MakeWritable("a b");
  const CommandOptions options = {.Folder = folder.Path(), .Input = "", .Environment = {}};
  RunClient({"store"}, options);
  EXPECT_EQ(ReadFile(folder / "a b"), "x y\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "gone"));
  RunClient({"lock"}, options);
  EXPECT_FALSE(IsWritable(folder / "a b"));
  RunClient({"edit"}, options);
  EXPECT_TRUE(IsWritable(folder / "a b"));
}

TEST(ScriptedClient, LeavesItsRecordWhenItCrashes) {
  ScriptedClient client;
  client.Otherwise().Out("begun").Crash().Out("never");
  const CommandResult result = RunClient({"x"});
  EXPECT_EQ(result.Status, 128 + SIGKILL);
  EXPECT_EQ(result.Output, "begun");
  EXPECT_THAT(client.Runs(), SizeIs(1));
}

TEST(ScriptedClient, GoesOnWithItsOutputClosed) {
  ScriptedClient client;
  client.Otherwise().Out("x").CloseOutput().Out("y").Error("z").ReadAll().Exit(5);
  const CommandResult result = RunClient({}, {.Folder = {}, .Input = "in", .Environment = {}});
  EXPECT_EQ(result.Output, "x");
  EXPECT_EQ(result.Status, 5);
  EXPECT_EQ(client.Runs().at(0).Input, "in");
}

TEST(ScriptedClient, ReadsNothingOnceItsInputIsClosed) {
  ScriptedClient client;
  client.Otherwise().CloseInput().ReadAll().Hang().Out("done");
  EXPECT_EQ(RunClient({}, {.Folder = {}, .Input = "in", .Environment = {}}).Output, "done");
  EXPECT_EQ(client.Runs().at(0).Input, "");
}

TEST(ScriptedClient, EndsLoudlyOnAnActionItDoesNotKnow) {
  const TemporaryFolder folder;
  WriteFile(folder / "script", "when \nwrite x\n");
  const ScriptedClient client;
  const EnvironmentVariable script("ZRK_CLIENT_SCRIPT", (folder / "script").string());
  EXPECT_EQ(RunClient({}).Status, 128 + SIGABRT);
}

TEST(ScriptedClient, KeepsRecordsApartOfRunsAtTheSameTime) {
  ScriptedClient client;
  client.Otherwise().ReadAll();
  const std::string text(5000, 'x');
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([&, number = std::to_string(thread)] {
      for (int i = 0; i < 10; ++i) {
        RunClient({text + number}, {.Folder = {}, .Input = text + number, .Environment = {}});
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  const std::vector<ClientRun> runs = client.Runs();
  EXPECT_THAT(runs, SizeIs(40));
  for (const ClientRun& run : runs) EXPECT_THAT(run.Arguments, ElementsAre(run.Input));
}

TEST(ScriptedClient, CanBeInstalledInPart) {
  const std::string path = GetEnvironmentValue("PATH").value();
  {
    const ScriptedClient client(InstalledClients::CVSOnly);
    EXPECT_EQ(RunClient({}).Status, 0);
    EXPECT_THROW(RunCommand({"svn.exe"}), std::system_error);
  }
  {
    const ScriptedClient client(InstalledClients::SVNOnly);
    EXPECT_EQ(RunCommand({"svn.exe"}).Status, 0);
    EXPECT_THROW(RunCommand({"cvs.exe"}), std::system_error);
  }
  {
    const ScriptedClient client(InstalledClients::None);
    EXPECT_THROW(RunCommand({"cvs.exe"}), std::system_error);
    EXPECT_THROW(RunCommand({"svn.exe"}), std::system_error);
  }
  EXPECT_EQ(GetEnvironmentValue("PATH"), path);
}

}  // namespace
